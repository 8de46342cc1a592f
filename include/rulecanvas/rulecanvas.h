/* RuleCanvas: figures of video-analytics rules, drawn and edited on top of a video picture.
 *
 * Conventions of this interface
 *
 *  1. Calls. On 32-bit Windows every exported function uses the standard calling convention and an undecorated name.
 *     Code that is called on an object (delegates, handlers, the drawing surface, the host object) uses `thiscall`:
 *     the object in ecx, the other arguments on the stack, popped by the callee. Elsewhere both are the platform's
 *     ordinary convention. Microsoft's compiler knows `thiscall` pointers in C++ only.
 *  2. Words. An argument or field of type uintptr_t is one machine word: 32 bits on 32-bit Windows.
 *  3. Booleans. A Bool32 result is exactly 0 or 1. Of a Bool32 argument only the low byte counts, in both directions,
 *     so that a caller that pushes a one-byte boolean may leave junk above it.
 *  4. Identities. ContainerHandle, ShapeID and ViewID are 32-bit numbers; 0 names no container and no shape, but is a
 *     view like any other. An unknown or stale handle or ID is harmless: the call changes nothing and returns the
 *     failure value named with it. On 32-bit Windows an identity may be given again to an object that is made later.
 *  5. Texts are NUL-terminated bytes in whatever code page the host uses. They are stored, compared and written to
 *     JSON byte for byte. The caller owns every text it passes; the library copies what it keeps. Texts that the
 *     library passes to a callback are valid during that call only. A null text reads as the empty text unless stated
 *     otherwise.
 *  6. Output texts are copied into a buffer of the caller, whose size in bytes is signed; a null buffer or a size that
 *     is too small, zero and negative ones included, leaves the buffer untouched.
 *  7. Ownership. The library owns containers and shapes. Delegates are two words and are copied; their targets stay
 *     the host's and must live until the container is released, or until the delegate is replaced and calls of it that
 *     other threads had begun have returned. A handler that the host fetched belongs to the host, which ends it
 *     through the handler's own table.
 *  8. Threads. The library starts none. Where a function says nothing else, any thread may call it at any time.
 *     Creating and releasing containers and GetVideoAnalyseAllShapestates must not overlap a call of another thread.
 *     The mouse handler must not run while another thread creates, deletes or redraws shapes of the same container.
 *     The draw handler may run on a thread of its own beside all per-container calls. Callbacks arrive on the thread
 *     of the call that caused them; any function may be called from inside a callback, even one that ends the speaking
 *     shape or its container. A callback must not wait for another thread that is inside the library: a figure
 *     that is deleted gives the capture back while the container is locked.
 *  9. Units. Points are pixels of a view's client area, origin at the top left, y downwards. Configuration texts carry
 *     whole numbers on a grid of 0..8191 over the view's width and over its height; loading rounds them to whole
 *     pixels. A client rectangle whose width or height is 0 or negative is that of a view without a size: nothing is
 *     placed in it and no figure is refitted to it. All figures are refitted to the client rectangle of view 0,
 *     whatever view they are in: a host answers for view 0 even when it has none, and gives the views of one container
 *     one size.
 * 10. Failure is a result, never an exception, and is not logged, unless RULECANVAS_TRACE=1 stood in the environment
 *     when the library was loaded: then each refused call sends one line to the debug output of Windows, elsewhere to
 *     the standard error. What the user may not do (a point outside the view, edges that would cross) is refused in
 *     silence, and the figure stays as it was.
 *
 * docs/reference has a page for every shape type, and the tables of style keys, notifications, hit levels and states.
 */
#ifndef RULECANVAS_RULECANVAS_H
#define RULECANVAS_RULECANVAS_H

#include <rulecanvas/version.h>

#include <stdint.h>

#if defined(_WIN32) && (defined(__i386__) || defined(_M_IX86))
#define RULECANVAS_CALL __stdcall
#if defined(_MSC_VER)
#define RULECANVAS_THISCALL __thiscall
#else
#define RULECANVAS_THISCALL __attribute__((thiscall))
#endif
#else
#define RULECANVAS_CALL
#define RULECANVAS_THISCALL
#endif

#if defined(_WIN32) && !defined(RULECANVAS_BUILD)
#define RULECANVAS_API __declspec(dllimport)
#elif defined(__GNUC__) && !defined(_WIN32)
#define RULECANVAS_API __attribute__((visibility("default")))
#else
#define RULECANVAS_API
#endif

/* <windows.h> renames these; the drawing surface must be the same class with and without it. A host that implements the
 * surface itself after <windows.h> undefines both, or derives from Surface of host.hpp instead. */
#pragma push_macro("DrawText")
#pragma push_macro("DrawTextEx")
#undef DrawText
#undef DrawTextEx

#ifdef __cplusplus
namespace rulecanvas {
extern "C" {
#endif

typedef uint32_t ContainerHandle; /* A live container. */
typedef uint32_t ShapeID;         /* A live shape of one container. */
typedef uint32_t ViewID;          /* One view (window) of the host, numbered by the host. */
typedef uint32_t Bool32;          /* See convention 3. */

typedef struct PointF {
    float x;
    float y;
} PointF;

/* Red, green and blue are meant on 0..255, but passed on as the host or a style gave them. Alpha 1.0 is opaque; the
 * mosaic alone passes 128. */
typedef struct ColorF {
    float alpha;
    float red;
    float green;
    float blue;
} ColorF;

/* `size` is whatever the figure put there (0, 1, 2 and 24 occur), or for "PixelCountShape" the "FontSize" of its
 * style: a host draws anything below 6, which may be negative, in its own default size. */
typedef struct TextStyle {
    ColorF colour;
    float size;
    char face[32]; /* Name of the font, NUL-terminated. */
} TextStyle;

typedef struct ClientRect {
    int32_t left;
    int32_t top;
    int32_t right;
    int32_t bottom;
} ClientRect;

/* Where a shape stands in its life: the numbers of "PreShapeState" and "ShapeState" in notifications. A press goes to a
 * shape in one of the four states in which it is busy before it goes to any other. */
enum ContainerShapeState {
    RULECANVAS_STATE_DELETED = 0,  /* Deleted by the right button: empty, neither drawn nor hit, still to be deleted. */
    RULECANVAS_STATE_WAITING = 1,  /* Busy: the next press in its view begins the drawing. */
    RULECANVAS_STATE_DRAWING = 2,  /* Busy. */
    RULECANVAS_STATE_COMPLETE = 3, /* Can be moved and changed. */
    RULECANVAS_STATE_MOVING = 4,   /* Busy, except an oval. */
    RULECANVAS_STATE_ADJUSTING = 5 /* Busy, except an oval: one of its points is being dragged. */
};

/* Values of ContainerMouseEvent::code; any other value is ignored.
 *
 * MOVED is a move of the pointer: it asks for a redraw when the last press met a busy shape, and reaches the gesture in
 * progress. MOVED_EVENT reaches the gesture without asking. CURSOR_QUERY reaches it too, after the hint
 * (RULECANVAS_HOST_SET_INTERACTION_HINT). ALT_RIGHT_DOWN and RIGHT_UP reach no shape type of this version. */
enum ContainerMouseEventCode {
    RULECANVAS_MOUSE_LEFT_DOWN = 1,
    RULECANVAS_MOUSE_LEFT_UP = 2,
    RULECANVAS_MOUSE_MOVED = 3,
    RULECANVAS_MOUSE_RIGHT_DOWN = 4,
    RULECANVAS_MOUSE_RIGHT_UP = 5,
    RULECANVAS_MOUSE_MOVED_EVENT = 6,
    RULECANVAS_MOUSE_CURSOR_QUERY = 9,
    RULECANVAS_MOUSE_ALT_RIGHT_DOWN = 10,
    RULECANVAS_MOUSE_KEY_DOWN = 11
};

/* What the host passes to the mouse handler for every mouse and key event of a view. The record may be longer. */
typedef struct ContainerMouseEvent {
    uint32_t code;
    ViewID viewId; /* Only shapes of this view hear of the event. */
    uint32_t unused0;
    float x; /* May lie outside the view while the mouse is captured. */
    float y;
    uint16_t unused1;
    uint16_t keyCode; /* Virtual-key code with RULECANVAS_MOUSE_KEY_DOWN; 27 is Escape. */
} ContainerMouseEvent;

/* A bound member function of the host. Empty, and never called, when `target` is null. Equal when both words are equal.
 *
 * `method` points to code with one of these forms:
 *   notify          void   THISCALL (void* target, const char* text, Bool32 flag)
 *   client rect     void   THISCALL (void* target, ViewID view, ClientRect* out)
 *   mouse capture   Bool32 THISCALL (void* target, Bool32 take), whose answer changes nothing
 *   translate, adjust point: stored, not called by any shape type of this version.
 */
typedef struct CDelegate {
    void* target;
    void* method;
} CDelegate;

typedef CDelegate ContainerNotifyEventDelegate;
typedef CDelegate GetContainerRectClientDelegate;
typedef CDelegate CtrlContainerWinMouseCaptureDelegate;
typedef CDelegate AdjustPointCoordinateDelegate;
typedef CDelegate ContainerTranslateDelegate;

struct ContainerHandlerTable;

/* A callable of the library: ContainerWinMouseEventHandler or ContainerDrawEventHandler. */
typedef struct ContainerHandler {
    const struct ContainerHandlerTable* table;
    void* target;
    void* method;
} ContainerHandler;

typedef struct ContainerHandlerTable {
    /* Ends the handler; frees it when bit 0 of `flags` is set. */
    void(RULECANVAS_THISCALL* destroy)(ContainerHandler* self, uint32_t flags);
    /* 1: a bound member function. */
    uint32_t(RULECANVAS_THISCALL* kind)(const ContainerHandler* self);
    /* Mouse handler: (ignored, const ContainerMouseEvent*). Draw handler: (ViewID, IContainerGraphics*). The result
     * means nothing to a host. A null event or surface, or a container that was released, makes the call do nothing. */
    uintptr_t(RULECANVAS_THISCALL* invoke)(ContainerHandler* self, uintptr_t first, uintptr_t second);
    /* 1 when both are bound to the same operation of the same container. */
    Bool32(RULECANVAS_THISCALL* equals)(const ContainerHandler* self, const ContainerHandler* other);
    /* A copy on the heap that the caller owns; null without memory. */
    ContainerHandler*(RULECANVAS_THISCALL* clone)(const ContainerHandler* self);
} ContainerHandlerTable;

/* Receives a handler. The library never touches `table`, which is the host's. A handler already in it is destroyed
 * first. */
typedef struct ContainerHandlerHolder {
    const void* table;
    ContainerHandler* handler; /* Owned by the host; null when empty. */
} ContainerHandlerHolder;

/* Places of the two operations, counted from zero, in the table of the host object given to
 * CreateVideoAnalyseContainer. Each is void THISCALL (void* host, uint32_t value). Only the places named here are ever
 * called. */
/* value 4, in answer to a cursor query: the last press of a button met a figure's outline or inside. It follows that
 * press alone, not what lies under the pointer now. */
#define RULECANVAS_HOST_SET_INTERACTION_HINT 45
/* value 0: repaint the views. Asked for on Escape and on moves after a press that met a busy shape; not while a
 * complete figure is dragged. */
#define RULECANVAS_HOST_REQUEST_REDRAW 54

/* The host's drawing operations, valid during one call of the draw handler and called on that thread only. The library
 * calls no reserved place. Widths are pixels; `penStyle` 0 is solid, 1 patterned. */
#ifdef __cplusplus
class IContainerGraphics {
  public:
    virtual void Reserved0() {}
    /* Stroke a straight segment. */
    virtual void DrawLine(const PointF* from, const PointF* to, float width, const ColorF* colour,
                          int32_t penStyle) = 0;
    virtual void Reserved2() {}
    virtual void Reserved3() {}
    virtual void Reserved4() {}
    /* Draw a text with its top left at the point. The last two arguments are 0 and 1. */
    virtual void DrawText(const PointF* at, const TextStyle* style, const char* text, int32_t first,
                          int32_t second) = 0;
    /* Not called by any shape type of this version. */
    virtual void DrawTextEx(const PointF* at, const TextStyle* style, const char* text) = 0;
    virtual void Reserved7() {}
    /* Fill the ellipse inscribed in the box of the two corners. */
    virtual void FillEllipse(const PointF* corner1, const PointF* corner2, float width, ColorF fill,
                             const ColorF* outline) = 0;
    /* Stroke the ellipse inscribed in the box of the two corners. */
    virtual void DrawEllipse(const PointF* corner1, const PointF* corner2, float width, const ColorF* colour) = 0;
    /* Stroke an axis-parallel rectangle. */
    virtual void DrawRectangle(const PointF* topLeft, const PointF* bottomRight, float width, const ColorF* colour,
                               int32_t penStyle) = 0;
    virtual void Reserved11() {}
    /* Width and height of a text in pixels. */
    virtual float MeasureText(TextStyle style, const char* text) = 0;
    virtual float MeasureTextHeight(TextStyle style, const char* text) = 0;
    virtual void Reserved14() {}
    virtual void Reserved15() {}
    /* Draw a caption for a figure given by its points, clipped. `format` is 32 and `last` is 1. */
    virtual void DrawTextAtPoints(const char* text, const PointF* points, int32_t count, ColorF colour, int32_t format,
                                  ClientRect clip, int32_t last) = 0;
    virtual void Reserved17() {}
    /* A layer: BeginLayer, SetLayerSize, any FillRectangle in layer coordinates, EndLayer at its place in the picture.
     */
    virtual void BeginLayer() = 0;
    virtual void EndLayer(int32_t x, int32_t y) = 0;
    virtual void Reserved20() {}
    virtual void Reserved21() {}
    virtual void Reserved22() {}
    virtual void Reserved23() {}
    virtual void SetLayerSize(int32_t width, int32_t height) = 0;
    virtual void Reserved25() {}
    virtual void Reserved26() {}
    virtual void Reserved27() {}
    virtual void Reserved28() {}
    virtual void Reserved29() {}
    virtual void Reserved30() {}
    virtual void FillRectangle(const PointF* topLeft, const PointF* bottomRight, const ColorF* colour) = 0;

  protected:
    /* The library never destroys a surface; a virtual destructor would take a place in the table. */
    ~IContainerGraphics() = default;
};
#else
struct IContainerGraphics;

typedef struct IContainerGraphicsTable {
    void* reserved0;
    void(RULECANVAS_THISCALL* DrawLine)(struct IContainerGraphics* self, const PointF* from, const PointF* to,
                                        float width, const ColorF* colour, int32_t penStyle);
    void* reserved2To4[3];
    void(RULECANVAS_THISCALL* DrawText)(struct IContainerGraphics* self, const PointF* at, const TextStyle* style,
                                        const char* text, int32_t first, int32_t second);
    void(RULECANVAS_THISCALL* DrawTextEx)(struct IContainerGraphics* self, const PointF* at, const TextStyle* style,
                                          const char* text);
    void* reserved7;
    void(RULECANVAS_THISCALL* FillEllipse)(struct IContainerGraphics* self, const PointF* corner1,
                                           const PointF* corner2, float width, ColorF fill, const ColorF* outline);
    void(RULECANVAS_THISCALL* DrawEllipse)(struct IContainerGraphics* self, const PointF* corner1,
                                           const PointF* corner2, float width, const ColorF* colour);
    void(RULECANVAS_THISCALL* DrawRectangle)(struct IContainerGraphics* self, const PointF* topLeft,
                                             const PointF* bottomRight, float width, const ColorF* colour,
                                             int32_t penStyle);
    void* reserved11;
    float(RULECANVAS_THISCALL* MeasureText)(struct IContainerGraphics* self, TextStyle style, const char* text);
    float(RULECANVAS_THISCALL* MeasureTextHeight)(struct IContainerGraphics* self, TextStyle style, const char* text);
    void* reserved14To15[2];
    void(RULECANVAS_THISCALL* DrawTextAtPoints)(struct IContainerGraphics* self, const char* text, const PointF* points,
                                                int32_t count, ColorF colour, int32_t format, ClientRect clip,
                                                int32_t last);
    void* reserved17;
    void(RULECANVAS_THISCALL* BeginLayer)(struct IContainerGraphics* self);
    void(RULECANVAS_THISCALL* EndLayer)(struct IContainerGraphics* self, int32_t x, int32_t y);
    void* reserved20To23[4];
    void(RULECANVAS_THISCALL* SetLayerSize)(struct IContainerGraphics* self, int32_t width, int32_t height);
    void* reserved25To30[6];
    void(RULECANVAS_THISCALL* FillRectangle)(struct IContainerGraphics* self, const PointF* topLeft,
                                             const PointF* bottomRight, const ColorF* colour);
} IContainerGraphicsTable;

typedef struct IContainerGraphics {
    const IContainerGraphicsTable* table;
} IContainerGraphics;
#endif

/* ---- The exported functions ---- */

/* Makes a container, disabled, without shapes and delegates. `hostObject` is not owned, must outlive the container, and
 * may be null: then no hint and no redraw is asked for. Returns 0 without memory. No other thread may be inside the
 * library. */
RULECANVAS_API ContainerHandle RULECANVAS_CALL CreateVideoAnalyseContainer(void* hostObject);

/* Destroys the container and its shapes, which give the capture back when they hold it. End the handlers
 * fetched from it first: one that is kept does nothing, until a later container happens to get the same identity. No
 * other thread may be inside the library. */
RULECANVAS_API void RULECANVAS_CALL ReleaseVideoAnalyseContainer(ContainerHandle container);

/* Makes a shape of a registered type ("Rect", "LineShape", ...) in a view and returns its ID, or 0: unknown type,
 * refused configuration, or an option that holds a value that cannot be converted. The shape is selected.
 *   label   becomes "EventName" in every notification of the shape;
 *   name    names the shape in notifications and is the key of its geometry in `config`; null reads as "NoName";
 *   config  JSON object with the geometry; empty: the user draws the shape;
 *   option  JSON object with the style, or one mode word ("TextOnly", "EnableRBtnDelete", "Convex", "Horizon",
 *           "MovedHLine", "solid", a number of crosses), which must be the whole text. What a type does not know, it
 *           ignores.
 * A selection notification, in which the name is still empty, comes before the call returns: also for a configuration
 * that is then refused, and so for a shape that never exists. Must not overlap the mouse handler. */
RULECANVAS_API ShapeID RULECANVAS_CALL CreateMainVideoAnalyseShape(ContainerHandle container, ViewID view,
                                                                   const char* label, const char* type,
                                                                   const char* name, const char* config,
                                                                   const char* option);

/* Copies the container's mouse handler into `holder`. 1; 0 for an unknown container or a null holder. Without memory
 * the holder stays empty and the result is 1. */
RULECANVAS_API Bool32 RULECANVAS_CALL GetContainerWinMouseEventHandler(ContainerHandle container,
                                                                       ContainerHandlerHolder* holder);

/* The same for the draw handler. */
RULECANVAS_API Bool32 RULECANVAS_CALL GetContainerDrawEventHandler(ContainerHandle container,
                                                                   ContainerHandlerHolder* holder);

/* Sets the receiver of notifications: one line of JSON each, ended by a line feed, and a flag that is always 0. An
 * empty delegate clears it; a null pointer changes nothing. */
RULECANVAS_API void RULECANVAS_CALL SetContainerNotifyEventDelegate(ContainerHandle container,
                                                                    const ContainerNotifyEventDelegate* delegate);

/* Stores the delegate; see CDelegate. */
RULECANVAS_API void RULECANVAS_CALL SetAdjustPointCoordinateDelegate(ContainerHandle container,
                                                                     const AdjustPointCoordinateDelegate* delegate);

/* Hands three words to a composite shape and returns its answer; 0 for every shape type of this version. */
RULECANVAS_API uint32_t RULECANVAS_CALL AddVideoAnalyseShape(ContainerHandle container, ShapeID shape, uint32_t first,
                                                             uint32_t second, uint32_t third);

/* Gives the capture back for a shape, clears and destroys it, without a notification. 1 for every known container,
 * whether or not the shape is known. Lasts about 10 ms but for ovals, crosses and spots, so that a paint of another
 * thread can finish. Must not overlap the mouse handler. */
RULECANVAS_API Bool32 RULECANVAS_CALL DeleteVideoAnalyseShape(ContainerHandle container, ShapeID shape);

/* Destroys all shapes of the container, without notifications, in about 10 ms. Must not overlap the mouse handler. */
RULECANVAS_API void RULECANVAS_CALL DeleteAllVideoAnalyseShape(ContainerHandle container);

/* Selects or deselects a shape and shows or hides its handles; other shapes stay as they are. 1; 0 when unknown. */
RULECANVAS_API Bool32 RULECANVAS_CALL SelectVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 select);

/* Sets the direction that the shape draws, any number; -1 is none. "LineShape" and its two variants and "XLineShape":
 * 0 from side A to side B, 1 from B to A, 2 both; they heed this call alone, not the "Direction" of a style. "Polygon"
 * and "VirablePolygon": 0 inwards, 1 outwards, 2 both. "ArrowLineShape": 3 and 4 by the slope of the last segment, 5
 * along the first. Another number draws a cross stroke without arrows, on "XLineShape" both arrows, on
 * "ArrowLineShape" none. The other types show no direction. Takes effect on a shape of the container itself, and then
 * returns 0; returns the parent's answer for a part of a composite shape, which no type of this version is. */
RULECANVAS_API int32_t RULECANVAS_CALL SetVideoAnalyseShapeDirection(ContainerHandle container, ShapeID shape,
                                                                     int32_t direction);

/* A disabled container ignores mouse events and draws nothing. 1; 0 when unknown. */
RULECANVAS_API Bool32 RULECANVAS_CALL EnableVideoAnalyseContainer(ContainerHandle container, Bool32 enable);

/* Copies the shape's geometry as it is now, one line of JSON, into the buffer. 1 when a text was copied, else 0:
 * unknown, the shape has no figure, or one with too few points, the buffer is too small. A buffer that holds the text
 * with its final line feed and a terminating zero is always large enough. Lines are written without the line feed;
 * polygons, crosses and spots also go into a buffer of exactly the text's length, and then without the zero. */
RULECANVAS_API Bool32 RULECANVAS_CALL GetVideoAnalyseShapeConfigData(ContainerHandle container, ShapeID shape,
                                                                     char* buffer, int32_t size);

/* A disabled shape gets no presses, but is drawn. Enabling also selects the shape, without showing its handles;
 * disabling deselects it and hides them. 1; 0 when unknown. */
RULECANVAS_API Bool32 RULECANVAS_CALL EnableVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 enable);

/* Throws the figure away, without a notification, so that the user draws it again; an oval stays as it is. 1; 0 when
 * unknown. Must not overlap the mouse handler. */
RULECANVAS_API Bool32 RULECANVAS_CALL RedrawVideoAnalyseShape(ContainerHandle container, ShapeID shape);

/* Sets the source of a view's client rectangle, whose left and top must be 0: figures are refitted by its right and
 * bottom. It is asked on the mouse and on the paint thread. Unset, every rectangle is all zeros and nothing can be
 * drawn. 1; 0 when unknown. A null pointer changes nothing and returns 0. */
RULECANVAS_API Bool32 RULECANVAS_CALL SetGetContainerRectClientDelegate(ContainerHandle container,
                                                                        const GetContainerRectClientDelegate* delegate);

/* Sets whom shapes ask to take (1) and release (0) the mouse capture. A host must not count the two: crosses, ovals
 * that were just drawn and spots that were just placed take it without giving it back, and others may give it back more
 * than once. Results as above. */
RULECANVAS_API Bool32 RULECANVAS_CALL SetCtrlContainerWinMouseCaptureDelegate(
    ContainerHandle container, const CtrlContainerWinMouseCaptureDelegate* delegate);

/* The first selected shape in ascending order of ShapeID, of any view; 0 when there is none. */
RULECANVAS_API ShapeID RULECANVAS_CALL GetSelectedVideoAnalyseShapeID(ContainerHandle container);

/* Sets the caption drawn beside the shape; arrows, pixel counters and cross-hairs show none. 1 for every known
 * container. */
RULECANVAS_API Bool32 RULECANVAS_CALL SetVideoAnalyseShapeShowName(ContainerHandle container, ShapeID shape,
                                                                   const char* text);

/* Shows or hides a shape, which gets its presses all the same. An oval that was drawn or resized last cannot be
 * hidden. 1 for every known container. */
RULECANVAS_API Bool32 RULECANVAS_CALL ShowVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 show);

/* Stores the delegate; see CDelegate. 1; 0 when unknown. A null pointer changes nothing and returns 0. */
RULECANVAS_API Bool32 RULECANVAS_CALL SetContainerTranslateDelegate(ContainerHandle container,
                                                                    const ContainerTranslateDelegate* delegate);

/* Sets the tip drawn in the middle of a view until a press hits a shape of that view; an empty one is none. 1; 0 when
 * unknown. */
RULECANVAS_API Bool32 RULECANVAS_CALL SetVideoAnalyseContainerTip(ContainerHandle container, ViewID view,
                                                                  const char* tip);

/* Refits all shapes to the client rectangle of view 0 at once; the draw handler does the same. 1; 0 when unknown. */
RULECANVAS_API Bool32 RULECANVAS_CALL InvalidateAllShape(ContainerHandle container);

/* Shows or hides the handles of a shape. 1 for every known container. */
RULECANVAS_API Bool32 RULECANVAS_CALL SetAdjustBoxbShow(ContainerHandle container, ShapeID shape, Bool32 show);

/* Sets the outline colour of the selected shape (`selectedColour` 1) or of the unselected one (0), opaque. Components
 * are meant on 0..255 and not tested. Crosses and pixel counters show the selected colour only. 1; 0 when unknown. */
RULECANVAS_API Bool32 RULECANVAS_CALL SetVideoAnalyseShapeColor(ContainerHandle container, ShapeID shape, int32_t red,
                                                                int32_t green, int32_t blue, Bool32 selectedColour);

/* Sets how many points the user may and must give. The maximum is taken as it is; a minimum of 3 or less is taken as 3.
 * Both are heeded by "BrokenLine", "Polygon" and "VirablePolygon"; the maximum, at least 2, by "ArrowLineShape" and
 * "XLineShape"; the maximum, as the number of crosses, by "CrossShape"; none by the other types. 1; 0 when unknown. */
RULECANVAS_API Bool32 RULECANVAS_CALL SetVideoAnalyseShapeMaxPtNum(ContainerHandle container, ShapeID shape,
                                                                   int32_t maximum, int32_t minimum);

/* Sets the size of the video in pixels, both above 0, which "PixelCountShape" takes over when it is first drawn. */
RULECANVAS_API void RULECANVAS_CALL SetPixelCount(ContainerHandle container, int32_t width, int32_t height);

/* Copies the state of all shapes of all containers as one JSON array into the buffer, "null" without shapes: for each
 * shape "ShapeID" (signed), "ShapeName", "ShapeType" and "bSelShape". Nothing tells that the buffer was too small: size
 * generously. No other thread may be inside the library. */
RULECANVAS_API void RULECANVAS_CALL GetVideoAnalyseAllShapestates(char* buffer, int32_t size);

#ifdef __cplusplus
}
}
#endif

#pragma pop_macro("DrawTextEx")
#pragma pop_macro("DrawText")

#endif
