#include "video/y4m_video.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <istream>
#include <sstream>
#include <stdexcept>

namespace rule_editor {

namespace {

constexpr char MAGIC[] = "YUV4MPEG2";
constexpr char FRAME_MARK[] = "FRAME";
constexpr size_t LONGEST_LINE = 1024;
constexpr int LARGEST_SIDE = 8192;

/* Reads up to a line feed. False at the end of the file; throws when the line does not end. */
bool readLine(std::istream& file, std::string& line) {
    line.clear();
    for (int byte = file.get(); byte != '\n'; byte = file.get()) {
        if (byte == std::istream::traits_type::eof()) {
            file.clear();
            return false;
        }
        if (line.size() == LONGEST_LINE) {
            throw std::runtime_error("a header line of the video is longer than " + std::to_string(LONGEST_LINE) +
                                     " bytes");
        }
        line.push_back(static_cast<char>(byte));
    }
    return true;
}

/* A whole positive number, or 0 for anything else. */
int positiveNumber(const std::string& text) {
    const bool digits = !text.empty() && text.size() <= 9 && text.find_first_not_of("0123456789") == std::string::npos;
    return digits ? std::atoi(text.c_str()) : 0;
}

int side(const std::string& word, const char* what) {
    const int pixels = positiveNumber(word.substr(1));
    if (pixels < 1 || pixels > LARGEST_SIDE) {
        throw std::runtime_error(std::string("the header gives no usable ") + what + " (" + word + ")");
    }
    return pixels;
}

uint32_t channel(int value) {
    return static_cast<uint32_t>(std::clamp((value + 128) >> 8, 0, 255));
}

/* ITU-R BT.601 in 8-bit fixed point: with luma in 16..235 and chroma in 16..240, or with both in 0..255. */
uint32_t toRgb(int luma, int blueness, int redness, bool fullRange) {
    const int u = blueness - 128;
    const int v = redness - 128;
    if (fullRange) {
        const int y = 256 * luma;
        return channel(y + 359 * v) << 16U | channel(y - 88 * u - 183 * v) << 8U | channel(y + 454 * u);
    }
    const int y = 298 * (luma - 16);
    return channel(y + 409 * v) << 16U | channel(y - 100 * u - 208 * v) << 8U | channel(y + 516 * u);
}

} // namespace

bool Y4mVideo::recognises(std::istream& file) {
    char start[sizeof MAGIC - 1] = {};
    file.read(start, sizeof start);
    file.clear();
    file.seekg(0);
    return std::memcmp(start, MAGIC, sizeof start) == 0;
}

Y4mVideo::Y4mVideo(std::unique_ptr<std::istream> file) : m_file(std::move(file)) {
    std::string header;
    if (!readLine(*m_file, header)) {
        throw std::runtime_error("the video ends inside its header");
    }
    readHeader(header);
    preparePlanes();
    findFrames();
    if (m_frames.empty()) {
        throw std::runtime_error(m_remark.empty() ? "the video holds no frame" : m_remark);
    }
}

Y4mVideo::~Y4mVideo() = default;

void Y4mVideo::readHeader(const std::string& line) {
    std::istringstream words(line);
    std::string word;
    words >> word;
    while (words >> word) {
        switch (word[0]) {
        case 'W':
        case 'H':
            readSize(word);
            break;
        case 'F':
            readRate(word);
            break;
        case 'C':
            readColourSpace(word);
            break;
        case 'X':
            m_fullRange = m_fullRange || word == "XCOLORRANGE=FULL";
            break;
        default:
            break; /* Interlacing, pixel shape and comments do not change what is shown. */
        }
    }
    if (m_size.width == 0 || m_size.height == 0) {
        throw std::runtime_error("the header of the video gives no width and height");
    }
}

void Y4mVideo::readSize(const std::string& word) {
    if (word[0] == 'W') {
        m_size.width = side(word, "width");
    } else {
        m_size.height = side(word, "height");
    }
}

void Y4mVideo::readRate(const std::string& word) {
    const size_t colon = std::min(word.find(':'), word.size());
    const int frames = positiveNumber(word.substr(1, colon - 1));
    const int seconds = colon < word.size() ? positiveNumber(word.substr(colon + 1)) : 0;
    if (frames > 0 && seconds > 0) {
        m_framesPerSecond = std::clamp(static_cast<double>(frames) / seconds, 1.0, 100.0);
    }
}

void Y4mVideo::readColourSpace(const std::string& word) {
    struct ColourSpace {
        const char* name;
        int chromaStepX;
        int chromaStepY;
    };
    static constexpr ColourSpace KNOWN[] = {{"C420", 2, 2},      {"C420jpeg", 2, 2}, {"C420mpeg2", 2, 2},
                                            {"C420paldv", 2, 2}, {"C422", 2, 1},     {"C444", 1, 1},
                                            {"Cmono", 0, 0}};
    for (const ColourSpace& space : KNOWN) {
        if (word == space.name) {
            m_chromaStepX = space.chromaStepX;
            m_chromaStepY = space.chromaStepY;
            return;
        }
    }
    throw std::runtime_error("the colour space " + word + " is not supported; convert the video to yuv420p");
}

void Y4mVideo::preparePlanes() {
    m_planes.push_back({m_size, {}});
    if (m_chromaStepX != 0) {
        const Size chroma = {(m_size.width + m_chromaStepX - 1) / m_chromaStepX,
                             (m_size.height + m_chromaStepY - 1) / m_chromaStepY};
        m_planes.push_back({chroma, {}});
        m_planes.push_back({chroma, {}});
    }
    for (const Plane& plane : m_planes) {
        m_frameBytes += static_cast<int64_t>(plane.size.width) * plane.size.height;
    }
}

void Y4mVideo::findFrames() {
    const int64_t start = m_file->tellg();
    m_file->seekg(0, std::ios::end);
    const int64_t end = m_file->tellg();
    m_file->seekg(start);
    std::string line;
    while (readLine(*m_file, line)) {
        const std::string number = std::to_string(m_frames.size());
        if (line.compare(0, sizeof FRAME_MARK - 1, FRAME_MARK) != 0) {
            m_remark = "there is no frame header where frame " + number + " of the video should begin";
            return;
        }
        const int64_t samples = m_file->tellg();
        if (end - samples < m_frameBytes) {
            m_remark = "frame " + number + " of the video is truncated: " + std::to_string(end - samples) + " of " +
                       std::to_string(m_frameBytes) + " bytes";
            return;
        }
        m_frames.push_back(samples);
        m_file->seekg(samples + m_frameBytes);
    }
    if (!line.empty()) {
        m_remark = "the video ends inside the header of frame " + std::to_string(m_frames.size());
    }
}

Frame Y4mVideo::frame(int index) {
    m_file->clear();
    m_file->seekg(m_frames.at(static_cast<size_t>(index)));
    for (Plane& plane : m_planes) {
        plane.samples.resize(static_cast<size_t>(plane.size.width) * static_cast<size_t>(plane.size.height));
        m_file->read(reinterpret_cast<char*>(plane.samples.data()), static_cast<std::streamsize>(plane.samples.size()));
    }
    if (!*m_file) {
        throw std::runtime_error("frame " + std::to_string(index) + " of the video cannot be read any more");
    }

    Frame picture;
    picture.resize(m_size);
    const uint8_t* luma = m_planes[0].samples.data();
    for (int y = 0; y < m_size.height; ++y) {
        uint32_t* const out = picture.row(y);
        for (int x = 0; x < m_size.width; ++x, ++luma) {
            int chroma[2] = {128, 128};
            for (size_t i = 1; i < m_planes.size(); ++i) {
                const int position = y / m_chromaStepY * m_planes[i].size.width + x / m_chromaStepX;
                chroma[i - 1] = m_planes[i].samples[static_cast<size_t>(position)];
            }
            out[x] = toRgb(*luma, chroma[0], chroma[1], m_fullRange);
        }
    }
    return picture;
}

} // namespace rule_editor
