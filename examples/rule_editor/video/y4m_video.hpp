#pragma once

#include "video/video_source.hpp"

#include <iosfwd>
#include <vector>

namespace rule_editor {

/* A YUV4MPEG2 stream with 8 bits a sample, as video converters write it: C420 in all its variants (also the default),
 * C422, C444 and Cmono. Frames are found when the file is opened and read when they are shown. A file that ends inside
 * a frame is shown up to there. */
class Y4mVideo final : public VideoSource {
  public:
    /* Looks at the first bytes and goes back to the start. */
    static bool recognises(std::istream& file);

    /* Throws std::runtime_error that says what is wrong with the header, or that there is no complete frame. */
    explicit Y4mVideo(std::unique_ptr<std::istream> file);
    ~Y4mVideo() override;

    Size size() const override { return m_size; }
    int frameCount() const override { return static_cast<int>(m_frames.size()); }
    double framesPerSecond() const override { return m_framesPerSecond; }
    Frame frame(int index) override;
    std::string remark() const override { return m_remark; }

  private:
    struct Plane {
        Size size;
        std::vector<uint8_t> samples;
    };

    void readHeader(const std::string& line);
    void readSize(const std::string& word);
    void readRate(const std::string& word);
    void readColourSpace(const std::string& word);
    void preparePlanes();
    void findFrames();

    std::unique_ptr<std::istream> m_file;
    Size m_size;
    double m_framesPerSecond = 25.0;
    int m_chromaStepX = 2; /* 0: there is no colour. */
    int m_chromaStepY = 2;
    bool m_fullRange = false;
    std::vector<Plane> m_planes;
    int64_t m_frameBytes = 0;
    std::vector<int64_t> m_frames; /* Where the samples of each frame begin. */
    std::string m_remark;
};

} // namespace rule_editor
