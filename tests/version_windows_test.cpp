// The version that the headers tell and the one that the DLL tells about itself.

#include "rulecanvas/rulecanvas.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

namespace rulecanvas::test {
namespace {

TEST(Version, IsTheSameInTheHeadersAndInTheResource) {
    std::vector<char> resource(GetFileVersionInfoSizeA("rulecanvas.dll", nullptr) + 1);
    ASSERT_TRUE(GetFileVersionInfoA("rulecanvas.dll", 0, static_cast<DWORD>(resource.size()), resource.data()));
    const auto find = [&](const std::string& entry) {
        void* found = nullptr;
        UINT length = 0;
        EXPECT_TRUE(VerQueryValueA(resource.data(), entry.c_str(), &found, &length)) << entry;
        return found;
    };
    const auto* const fixed = static_cast<const VS_FIXEDFILEINFO*>(find("\\"));
    EXPECT_EQ(fixed->dwFileVersionMS, MAKELONG(RULECANVAS_VERSION_MINOR, RULECANVAS_VERSION_MAJOR));
    EXPECT_EQ(fixed->dwFileVersionLS, MAKELONG(0, RULECANVAS_VERSION_PATCH));
    EXPECT_EQ(fixed->dwProductVersionMS, fixed->dwFileVersionMS);
    EXPECT_EQ(fixed->dwProductVersionLS, fixed->dwFileVersionLS);
    for (const char* name : {"FileVersion", "ProductVersion"}) {
        const void* const text = find(std::string("\\StringFileInfo\\040904B0\\") + name);
        EXPECT_STREQ(static_cast<const char*>(text), RULECANVAS_VERSION);
    }
}

} // namespace
} // namespace rulecanvas::test
