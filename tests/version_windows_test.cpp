// The version that the headers tell and the one that the DLL tells about itself.

#include "rulecanvas/rulecanvas.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

namespace rulecanvas::test {
namespace {

class VersionResource {
  public:
    VersionResource() {
        bytes.resize(GetFileVersionInfoSizeA("rulecanvas.dll", nullptr));
        if (!bytes.empty()) {
            GetFileVersionInfoA("rulecanvas.dll", 0, static_cast<DWORD>(bytes.size()), bytes.data());
        }
    }

    /// Null when there is no such entry.
    const void* Find(const char* entry) const {
        void* found = nullptr;
        UINT length = 0;
        return !bytes.empty() && VerQueryValueA(bytes.data(), entry, &found, &length) != FALSE ? found : nullptr;
    }

    std::string Text(const char* name) const {
        const std::string entry = std::string("\\StringFileInfo\\040904B0\\") + name;
        const void* const found = Find(entry.c_str());
        return found == nullptr ? "absent" : static_cast<const char*>(found);
    }

  private:
    std::vector<char> bytes;
};

TEST(Version, IsTheSameInTheHeadersAndInTheResource) {
    const VersionResource resource;
    const auto* fixed = static_cast<const VS_FIXEDFILEINFO*>(resource.Find("\\"));
    ASSERT_NE(fixed, nullptr);
    EXPECT_EQ(fixed->dwFileVersionMS, MAKELONG(RULECANVAS_VERSION_MINOR, RULECANVAS_VERSION_MAJOR));
    EXPECT_EQ(fixed->dwFileVersionLS, MAKELONG(0, RULECANVAS_VERSION_PATCH));
    EXPECT_EQ(fixed->dwProductVersionMS, fixed->dwFileVersionMS);
    EXPECT_EQ(fixed->dwProductVersionLS, fixed->dwFileVersionLS);
    EXPECT_EQ(resource.Text("FileVersion"), RULECANVAS_VERSION);
    EXPECT_EQ(resource.Text("ProductVersion"), RULECANVAS_VERSION);
}

} // namespace
} // namespace rulecanvas::test
