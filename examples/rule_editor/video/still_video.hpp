#pragma once

#include "video/video_source.hpp"

namespace rule_editor {

/* One picture of any format that GDI+ reads, such as PNG and JPEG. */
class StillVideo final : public VideoSource {
  public:
    /* Throws std::runtime_error when the file holds no such picture. */
    explicit StillVideo(const std::wstring& path);

    Size size() const override { return m_picture.size; }
    int frameCount() const override { return 1; }
    double framesPerSecond() const override { return 0.0; }
    Frame frame(int) override { return m_picture; }

  private:
    Frame m_picture;
};

} // namespace rule_editor
