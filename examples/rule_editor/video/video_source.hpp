#pragma once

#include "video/frame.hpp"

#include <memory>
#include <string>

namespace rule_editor {

/// A picture that may move.
class VideoSource {
  public:
    virtual ~VideoSource() = default;

    virtual Size PictureSize() const = 0;
    /// At least 1.
    virtual int FrameCount() const = 0;
    /// 0 for a picture that does not move.
    virtual double FramesPerSecond() const = 0;
    /// `index` is 0..FrameCount()-1. Its size may differ from the picture's. Throws std::runtime_error when the file cannot
    /// be read any more.
    virtual Frame FrameAt(int index) = 0;
    /// What the user should know about the file although it can be shown; usually empty.
    virtual std::string Remark() const { return std::string(); }
};

/// Opens a file by what it begins with; an empty path gives the built-in scene. Throws std::runtime_error.
std::unique_ptr<VideoSource> OpenVideo(const std::wstring& path);

/// What OpenVideo takes, and how to get it from other files.
extern const char* const VideoHelp;

} // namespace rule_editor
