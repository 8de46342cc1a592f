/// What the page calls beside the library's own functions: the objects that a host in C++ would write.
#include "page_host.hpp"

using rulecanvas::MouseCode;
using rulecanvas::ShapeID;
using rulecanvas::ViewID;
using rulecanvas_web::PageHost;

extern "C" {

PageHost* HostCreate(uint32_t number) {
    return new PageHost(number);
}

void HostRelease(PageHost* host) {
    delete host;
}

rulecanvas::ContainerHandle HostContainer(PageHost* host) {
    return host->Container().Handle();
}

void HostResize(PageHost* host, int32_t width, int32_t height) {
    host->Resize(width, height);
}

void HostMouse(PageHost* host, uint32_t code, ViewID view, float x, float y) {
    host->Container().SendMouse(static_cast<MouseCode>(code), view, x, y);
}

void HostKey(PageHost* host, ViewID view, uint32_t virtualKey) {
    host->Container().SendKey(view, static_cast<uint16_t>(virtualKey));
}

bool HostPaint(PageHost* host, ViewID view) {
    return host->Paint(view);
}

const uint32_t* HostRecording(PageHost* host) {
    return host->Recording().data();
}

size_t HostRecordingSize(PageHost* host) {
    return host->Recording().size();
}

const char* HostConfiguration(PageHost* host, ShapeID shape) {
    return host->Configuration(shape);
}

const uint32_t* HostSelection(PageHost* host) {
    return host->Selection();
}

void HostListen(PageHost* host, bool listens) {
    host->Listen(listens);
}

void HostForgetMeasures(PageHost* host) {
    host->ForgetMeasures();
}
}
