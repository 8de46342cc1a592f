#pragma once

#include "video/video_source.hpp"

#include <iosfwd>
#include <vector>

namespace rule_editor {

/// A YUV4MPEG2 stream with 8 bits a sample, as video converters write it: C420 in all its variants (also the default),
/// C422, C444 and Cmono. Frames are found when the file is opened and read when they are shown. A file that ends inside
/// a frame is shown up to there.
class Y4mVideo final : public VideoSource {
  public:
    /// Looks at the first bytes and goes back to the start.
    static bool Recognises(std::istream& file);

    /// Throws std::runtime_error that says what is wrong with the header, or that there is no complete frame.
    explicit Y4mVideo(std::unique_ptr<std::istream> file);
    ~Y4mVideo() override;

    Size PictureSize() const override { return size; }
    int FrameCount() const override { return static_cast<int>(frames.size()); }
    double FramesPerSecond() const override { return framesPerSecond; }
    Frame FrameAt(int index) override;
    std::string Remark() const override { return remark; }

  private:
    struct Plane {
        Size size;
        std::vector<uint8_t> samples;
    };

    void ReadHeader(const std::string& line);
    void ReadSize(const std::string& word);
    void ReadRate(const std::string& word);
    void ReadColourSpace(const std::string& word);
    void PreparePlanes();
    void FindFrames();

    std::unique_ptr<std::istream> file;
    Size size;
    double framesPerSecond = 25.0;
    int chromaStepX = 2; ///< 0: there is no colour.
    int chromaStepY = 2;
    bool fullRange = false;
    std::vector<Plane> planes;
    int64_t frameBytes = 0;
    std::vector<int64_t> frames; ///< Where the samples of each frame begin.
    std::string remark;
};

} // namespace rule_editor
