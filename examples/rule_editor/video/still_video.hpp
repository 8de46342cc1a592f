#pragma once

#include "video/video_source.hpp"

namespace rule_editor {

/// One picture of any format that GDI+ reads, such as PNG and JPEG.
class StillVideo final : public VideoSource {
  public:
    /// Throws std::runtime_error when the file holds no such picture.
    explicit StillVideo(const std::wstring& path);

    Size PictureSize() const override { return picture.size; }
    int FrameCount() const override { return 1; }
    double FramesPerSecond() const override { return 0.0; }
    Frame FrameAt(int) override { return picture; }

  private:
    Frame picture;
};

} // namespace rule_editor
