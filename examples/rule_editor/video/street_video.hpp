#pragma once

#include "video/video_source.hpp"

namespace rule_editor {

/// The built-in scene: a street seen by a camera above it, with cars. It repeats without a seam.
class StreetVideo final : public VideoSource {
  public:
    StreetVideo();

    Size PictureSize() const override;
    int FrameCount() const override;
    double FramesPerSecond() const override;
    Frame FrameAt(int index) override;

  private:
    Frame empty; ///< The street without traffic, in twice the size of the picture: scaling it down gives soft edges.
};

} // namespace rule_editor
