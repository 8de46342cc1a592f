#pragma once

#include "allocations.h"
#include "figures.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace rulecanvas::torture {

/// Where the library calls into the host.
enum class Callback { Notify, ClientRect, Capture, Hint, Redraw, Drawing };

const char* NameOf(Callback callback);

constexpr ViewID TheView = 7;

/// A host with one container that watches what the library may not do: call into a host after its container was
/// released, or on behalf of a shape after its deletion returned.
class Host {
  public:
    Host();
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// Runs inside every callback. What it throws leaves the callback.
    std::function<void(Callback)> inside;

    ContainerHandle Handle() const { return container; }
    bool IsAlive() const { return alive; }
    /// The latest shape made by "A".
    ShapeID Subject() const { return subject; }
    /// What the library last said of the capture.
    bool Captured() const { return captured; }
    /// Notifications and captures since the last call, in one text.
    std::string TakeLog();
    /// Frees what this host itself remembers.
    void Forget();
    /// Selects what "A" makes.
    void Use(const Figure& chosen) { figure = &chosen; }

    /// One step of the user or the host:
    ///     pX,Y uX,Y mX,Y rX,Y RX,Y eX,Y qX,Y aX,Y     left down and up, move, right down and up, the other kinds of move
    ///                                                 (6 and 9), right down with Alt
    ///     kN                                          key
    ///     P, SX,Y, F                                  paint, new size of the view, refit
    ///     A, B, C, W, D, X                            add the figure, add refused ones, add a copy of it and delete that,
    ///                                                 draw it anew, delete it, delete all
    void Do(const std::string& step);
    void DoAll(const std::string& steps);

    void Send(uint32_t code, float x, float y, ViewID view = TheView, uint16_t key = 0);
    void Paint(ViewID view = TheView);
    void Resize(int32_t width, int32_t height) { clientRect = ClientRect{0, 0, width, height}; }
    ShapeID Add(const Figure& added, const char* configuration, const char* option, ViewID view = TheView);
    void Delete(ShapeID shape);
    void DeleteAll();
    void Release();
    /// Fetches both handlers, also from inside a call of them.
    void FetchHandlers();
    void SetDelegates(bool given);
    /// As at first: delegates, handlers, size, enabled, no shapes.
    void Reset();

    /// Runs an exported function.
    template <class Function, class... Arguments>
    auto Call(Function* function, Arguments... arguments) {
        const InsideLibrary inLibrary;
        return function(arguments...);
    }

  private:
    struct Object {
        void (*const* table)(void*, uint32_t);
        Host* host;
    };
    static void Notify(void* target, const char* text, Bool32 flag);
    static void GetClientRect(void* target, ViewID view, ClientRect* out);
    static Bool32 Capture(void* target, Bool32 take);
    static void Hint(void* object, uint32_t value);
    static void RequestRedraw(void* object, uint32_t value);

    void Hear(Callback callback);
    /// Runs a call that ends shapes; they are ended when the outermost such call returns.
    /// `call` tells whether it did.
    template <class Ending>
    void End(std::set<ShapeID> ended, Ending call);
    void Copy();

    friend class Canvas;

    Object object;
    const Figure* figure = &Figures().front();
    ContainerHandle container = 0;
    ContainerHandlerHolder mouse{nullptr, nullptr};
    ContainerHandlerHolder draw{nullptr, nullptr};
    ClientRect clientRect{0, 0, 800, 600};
    ShapeID subject = 0;
    bool alive = true;
    bool releasing = false;
    bool captured = false;
    int adding = 0;
    int painting = 0;
    int ending = 0;
    std::set<ShapeID> shapes;
    std::set<ShapeID> endingShapes;
    std::set<ShapeID> endedShapes;
    std::string log;
};

/// Draws a figure as a user does who was never disturbed, and tells what the host heard and what was made.
std::string DrawFresh(Host& host, const Figure& figure);

/// The whole life of a figure, in steps.
std::vector<std::string> LifeOf(const Figure& figure);

} // namespace rulecanvas::torture
