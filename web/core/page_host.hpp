#pragma once

#include "recording_surface.hpp"

#include <rulecanvas/host.hpp>

#include <cstdint>

namespace rulecanvas_web {

/// One container with what it asks of a host, as a page sees it.
class PageHost {
  public:
    /// `number` is how the page tells its hosts apart.
    explicit PageHost(uint32_t number);

    rulecanvas::Container& Container() { return container; }
    void Resize(int32_t width, int32_t height) { area = {0, 0, width, height}; }
    /// The page's font is another one from now on.
    void ForgetMeasures() { measures.Forget(); }
    /// Paints into the recording. Whether it differs from the one before.
    bool Paint(rulecanvas::ViewID view);
    const std::vector<uint32_t>& Recording() const { return surface.Words(); }
    /// The geometry of a shape; valid until the next call.
    const char* Configuration(rulecanvas::ShapeID shape);

  private:
    rulecanvas::HostObject object;
    rulecanvas::Container container;
    rulecanvas::ClientRect area = {0, 0, 0, 0};
    TextMeasures measures;
    RecordingSurface surface;
    rulecanvas::Text configuration;
};

} // namespace rulecanvas_web
