#include "video/video_source.hpp"

#include "unicode.hpp"
#include "video/still_video.hpp"
#include "video/street_video.hpp"
#include "video/y4m_video.hpp"

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace rule_editor {

std::unique_ptr<VideoSource> openVideo(const std::wstring& path) {
    if (path.empty()) {
        return std::make_unique<StreetVideo>();
    }
    auto file = std::make_unique<std::ifstream>(std::filesystem::path(path), std::ios::binary);
    if (!*file) {
        throw std::runtime_error("cannot open " + toUtf8(path));
    }
    try {
        if (Y4mVideo::recognises(*file)) {
            return std::make_unique<Y4mVideo>(std::move(file));
        }
        return std::make_unique<StillVideo>(path);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(toUtf8(path) + ": " + error.what());
    }
}

} // namespace rule_editor
