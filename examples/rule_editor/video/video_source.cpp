#include "video/video_source.hpp"

#include "video/still_video.hpp"
#include "video/street_video.hpp"
#include "video/y4m_video.hpp"

#include <rulecanvas_kit/unicode.hpp>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace rule_editor {

const char* const VideoHelp =
    "Videos are YUV4MPEG2 files (.y4m) with 8 bits a sample; PNG and JPEG pictures do too. Make one of any clip by\n"
    "ffmpeg -i clip.mp4 -pix_fmt yuv420p clip.y4m";

std::unique_ptr<VideoSource> OpenVideo(const std::wstring& path) {
    if (path.empty()) {
        return std::make_unique<StreetVideo>();
    }
    const std::string name = rulecanvas::kit::ToUtf8(path);
    auto file = std::make_unique<std::ifstream>(std::filesystem::path(path), std::ios::binary);
    if (!*file) {
        throw std::runtime_error("cannot open " + name);
    }
    try {
        if (Y4mVideo::Recognises(*file)) {
            return std::make_unique<Y4mVideo>(std::move(file));
        }
        return std::make_unique<StillVideo>(path);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(name + ": " + error.what() + "\n\n" + VideoHelp);
    }
}

} // namespace rule_editor
