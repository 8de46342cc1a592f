#pragma once

#include "recording_surface.hpp"

#include <rulecanvas/host.hpp>

#include <cstdint>
#include <vector>

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
    /// How many shapes are selected, then their identities; valid until the next call. The report of all states says the
    /// same in JSON, which takes a thousand times as long to write and to read.
    const uint32_t* Selection();
    /// Whether the page is notified. Unheard, no notification is written.
    void Listen(bool listens);

  private:
    static void RULECANVAS_METHOD Notified(RULECANVAS_SELF, const char* text, rulecanvas::Bool32) noexcept;

    const uint32_t page;
    rulecanvas::HostObject object;
    rulecanvas::Container container;
    rulecanvas::ClientRect area = {0, 0, 0, 0};
    TextMeasures measures;
    RecordingSurface surface;
    rulecanvas::Text configuration;
    std::vector<uint32_t> selection;
};

} // namespace rulecanvas_web
