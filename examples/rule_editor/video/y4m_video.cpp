#include "video/y4m_video.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <istream>
#include <sstream>
#include <stdexcept>

namespace rule_editor {

namespace {

constexpr char Magic[] = "YUV4MPEG2";
constexpr char FrameMark[] = "FRAME";
constexpr size_t LongestLine = 1024;
constexpr int LargestSide = 8192;

/// Reads up to a line feed. False at the end of the file; throws when the line does not end.
bool ReadLine(std::istream& file, std::string& line) {
    line.clear();
    for (int byte = file.get(); byte != '\n'; byte = file.get()) {
        if (byte == std::istream::traits_type::eof()) {
            file.clear();
            return false;
        }
        if (line.size() == LongestLine) {
            throw std::runtime_error("a header line of the video is longer than " + std::to_string(LongestLine) +
                                     " bytes");
        }
        line.push_back(static_cast<char>(byte));
    }
    return true;
}

/// A whole positive number, or 0 for anything else.
int PositiveNumber(const std::string& text) {
    const bool digits = !text.empty() && text.size() <= 9 && text.find_first_not_of("0123456789") == std::string::npos;
    return digits ? std::atoi(text.c_str()) : 0;
}

int Side(const std::string& word, const char* what) {
    const int pixels = PositiveNumber(word.substr(1));
    if (pixels < 1 || pixels > LargestSide) {
        throw std::runtime_error(std::string("the header gives no usable ") + what + " (" + word + ")");
    }
    return pixels;
}

uint32_t Channel(int value) {
    return static_cast<uint32_t>(std::clamp((value + 128) >> 8, 0, 255));
}

/// ITU-R BT.601 in 8-bit fixed point: with luma in 16..235 and chroma in 16..240, or with both in 0..255.
uint32_t ToRgb(int luma, int blueness, int redness, bool fullRange) {
    const int u = blueness - 128;
    const int v = redness - 128;
    if (fullRange) {
        const int y = 256 * luma;
        return Channel(y + 359 * v) << 16U | Channel(y - 88 * u - 183 * v) << 8U | Channel(y + 454 * u);
    }
    const int y = 298 * (luma - 16);
    return Channel(y + 409 * v) << 16U | Channel(y - 100 * u - 208 * v) << 8U | Channel(y + 516 * u);
}

} // namespace

bool Y4mVideo::Recognises(std::istream& file) {
    char start[sizeof Magic - 1] = {};
    file.read(start, sizeof start);
    file.clear();
    file.seekg(0);
    return std::memcmp(start, Magic, sizeof start) == 0;
}

Y4mVideo::Y4mVideo(std::unique_ptr<std::istream> given) : file(std::move(given)) {
    std::string header;
    if (!ReadLine(*file, header)) {
        throw std::runtime_error("the video ends inside its header");
    }
    ReadHeader(header);
    PreparePlanes();
    FindFrames();
    if (frames.empty()) {
        throw std::runtime_error(remark.empty() ? "the video holds no frame" : remark);
    }
}

Y4mVideo::~Y4mVideo() = default;

void Y4mVideo::ReadHeader(const std::string& line) {
    std::istringstream words(line);
    std::string word;
    words >> word;
    while (words >> word) {
        switch (word[0]) {
        case 'W':
        case 'H':
            ReadSize(word);
            break;
        case 'F':
            ReadRate(word);
            break;
        case 'C':
            ReadColourSpace(word);
            break;
        case 'X':
            fullRange = fullRange || word == "XCOLORRANGE=FULL";
            break;
        default:
            break; ///< Interlacing, pixel shape and comments do not change what is shown.
        }
    }
    if (size.width == 0 || size.height == 0) {
        throw std::runtime_error("the header of the video gives no width and height");
    }
}

void Y4mVideo::ReadSize(const std::string& word) {
    if (word[0] == 'W') {
        size.width = Side(word, "width");
    } else {
        size.height = Side(word, "height");
    }
}

void Y4mVideo::ReadRate(const std::string& word) {
    const size_t colon = std::min(word.find(':'), word.size());
    const int count = PositiveNumber(word.substr(1, colon - 1));
    const int seconds = colon < word.size() ? PositiveNumber(word.substr(colon + 1)) : 0;
    if (count > 0 && seconds > 0) {
        framesPerSecond = std::clamp(static_cast<double>(count) / seconds, 1.0, 100.0);
    }
}

void Y4mVideo::ReadColourSpace(const std::string& word) {
    struct ColourSpace {
        const char* name;
        int chromaStepX;
        int chromaStepY;
    };
    static constexpr ColourSpace Known[] = {{"C420", 2, 2},      {"C420jpeg", 2, 2}, {"C420mpeg2", 2, 2},
                                            {"C420paldv", 2, 2}, {"C422", 2, 1},     {"C444", 1, 1},
                                            {"Cmono", 0, 0}};
    for (const ColourSpace& space : Known) {
        if (word == space.name) {
            chromaStepX = space.chromaStepX;
            chromaStepY = space.chromaStepY;
            return;
        }
    }
    throw std::runtime_error("the colour space " + word + " is not supported; convert the video to yuv420p");
}

void Y4mVideo::PreparePlanes() {
    planes.push_back({size, {}});
    if (chromaStepX != 0) {
        const Size chroma = {(size.width + chromaStepX - 1) / chromaStepX,
                             (size.height + chromaStepY - 1) / chromaStepY};
        planes.push_back({chroma, {}});
        planes.push_back({chroma, {}});
    }
    for (const Plane& plane : planes) {
        frameBytes += static_cast<int64_t>(plane.size.width) * plane.size.height;
    }
}

void Y4mVideo::FindFrames() {
    const int64_t start = file->tellg();
    file->seekg(0, std::ios::end);
    const int64_t end = file->tellg();
    file->seekg(start);
    std::string line;
    while (ReadLine(*file, line)) {
        const std::string number = std::to_string(frames.size());
        if (line.compare(0, sizeof FrameMark - 1, FrameMark) != 0) {
            remark = "there is no frame header where frame " + number + " of the video should begin";
            return;
        }
        const int64_t samples = file->tellg();
        if (end - samples < frameBytes) {
            remark = "frame " + number + " of the video is truncated: " + std::to_string(end - samples) + " of " +
                     std::to_string(frameBytes) + " bytes";
            return;
        }
        frames.push_back(samples);
        file->seekg(samples + frameBytes);
    }
    if (!line.empty()) {
        remark = "the video ends inside the header of frame " + std::to_string(frames.size());
    }
}

Frame Y4mVideo::FrameAt(int index) {
    file->clear();
    file->seekg(frames.at(static_cast<size_t>(index)));
    for (Plane& plane : planes) {
        plane.samples.resize(static_cast<size_t>(plane.size.width) * static_cast<size_t>(plane.size.height));
        file->read(reinterpret_cast<char*>(plane.samples.data()), static_cast<std::streamsize>(plane.samples.size()));
    }
    if (!*file) {
        throw std::runtime_error("frame " + std::to_string(index) + " of the video cannot be read any more");
    }

    Frame picture;
    picture.Resize(size);
    const uint8_t* luma = planes[0].samples.data();
    for (int y = 0; y < size.height; ++y) {
        uint32_t* const out = picture.Row(y);
        for (int x = 0; x < size.width; ++x, ++luma) {
            int chroma[2] = {128, 128};
            for (size_t i = 1; i < planes.size(); ++i) {
                const int position = y / chromaStepY * planes[i].size.width + x / chromaStepX;
                chroma[i - 1] = planes[i].samples[static_cast<size_t>(position)];
            }
            out[x] = ToRgb(*luma, chroma[0], chroma[1], fullRange);
        }
    }
    return picture;
}

} // namespace rule_editor
