#pragma once

#include "video/video_source.hpp"

namespace rule_editor {

/* The built-in scene: a street seen by a camera above it, with cars and people. It repeats without a seam. */
class StreetVideo final : public VideoSource {
  public:
    StreetVideo();

    Size size() const override;
    int frameCount() const override;
    double framesPerSecond() const override;
    Frame frame(int index) override;

  private:
    Frame m_empty; /* The street without traffic, in the size that is drawn in. */
};

} // namespace rule_editor
