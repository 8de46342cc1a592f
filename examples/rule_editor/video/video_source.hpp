#pragma once

#include "picture/frame.hpp"

#include <memory>
#include <string>

namespace rule_editor {

/* A picture that may move. */
class VideoSource {
  public:
    virtual ~VideoSource() = default;

    virtual Size size() const = 0;
    /* At least 1. */
    virtual int frameCount() const = 0;
    /* 0 for a picture that does not move. */
    virtual double framesPerSecond() const = 0;
    /* `index` is 0..frameCount()-1. Throws std::runtime_error when the file cannot be read any more. */
    virtual Frame frame(int index) = 0;
    /* What the user should know about the file although it can be shown; usually empty. */
    virtual std::string remark() const { return std::string(); }
};

/* Opens a file by what it begins with; an empty path gives the built-in scene. Throws std::runtime_error. */
std::unique_ptr<VideoSource> openVideo(const std::wstring& path);

} // namespace rule_editor
