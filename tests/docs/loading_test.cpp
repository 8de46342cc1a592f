#include "docs/figure_behaviour.h"
#include "support/scenario_host.h"

#include <gtest/gtest.h>

#include <sstream>

namespace rulecanvas::test {
namespace {

enum class Kind { Complete, Waits, Refused, Option };

struct Sample {
    const char* place;
    Kind kind;
    const char* type;
    const char* name;
    const char* option;
    int width;
    int height;
    const char* text;
    const char* written;
};

const Sample Samples[] = {
#include "samples.inc"
};

void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.place;
}

void ExpectEveryTypeHeeds(const std::string& types, const char* style) {
    std::istringstream list(types);
    for (std::string type; std::getline(list, type, ',');) {
        const Lines styled = BehaviourOf(type, style);
        EXPECT_NE(styled, Lines{"refused"}) << type;
        EXPECT_NE(styled, BehaviourOf(type, "")) << type << " does not heed it";
    }
}

void ExpectAsMarked(const Sample& sample) {
    ScenarioHost host(sample.width, sample.height);
    host.container.SetVideoSize(sample.width, sample.height);
    const ShapeID shape =
        host.container.AddShape({TheView, sample.type, "label", sample.name, sample.text, sample.option});
    if (sample.kind == Kind::Refused) {
        EXPECT_EQ(shape, 0U) << "not refused";
        return;
    }
    ASSERT_NE(shape, 0U) << "refused";
    host.Paint(); // which places a pixel counter
    EXPECT_EQ(host.Config(shape), sample.written);
}

class DocumentSample : public testing::TestWithParam<Sample> {};

TEST_P(DocumentSample, IsTakenAsItIsMarked) {
    const Sample& sample = GetParam();
    SCOPED_TRACE(sample.place);
    if (sample.kind == Kind::Option) {
        ExpectEveryTypeHeeds(sample.type, sample.text);
    } else {
        ExpectAsMarked(sample);
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, DocumentSample, testing::ValuesIn(Samples));

} // namespace
} // namespace rulecanvas::test
