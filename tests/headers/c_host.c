/* rulecanvas.h as C, and its layout, which every compiler must agree on. */
#include <rulecanvas/rulecanvas.h>

#include <stddef.h>

#define PLACE_IS(place, operation)                                                                                     \
    _Static_assert(offsetof(IContainerGraphicsTable, operation) == (place) * sizeof(void*), #operation " has moved")

PLACE_IS(1, DrawLine);
PLACE_IS(5, DrawText);
PLACE_IS(6, DrawTextEx);
PLACE_IS(8, FillEllipse);
PLACE_IS(9, DrawEllipse);
PLACE_IS(10, DrawRectangle);
PLACE_IS(12, MeasureText);
PLACE_IS(13, MeasureTextHeight);
PLACE_IS(16, DrawTextAtPoints);
PLACE_IS(18, BeginLayer);
PLACE_IS(19, EndLayer);
PLACE_IS(24, SetLayerSize);
PLACE_IS(31, FillRectangle);

_Static_assert(sizeof(TextStyle) == 52, "a style is 52 bytes");
_Static_assert(sizeof(ContainerMouseEvent) == 24, "the part of an event that is read is 24 bytes");
_Static_assert(offsetof(ContainerMouseEvent, x) == 12 && offsetof(ContainerMouseEvent, keyCode) == 22,
               "an event has moved");
_Static_assert(sizeof(CDelegate) == 2 * sizeof(void*) && sizeof(ContainerHandler) == 3 * sizeof(void*) &&
                   sizeof(ContainerHandlerHolder) == 2 * sizeof(void*),
               "a word was added");

void PressInC(ContainerHandlerHolder* mouse, ContainerHandle container);

void PressInC(ContainerHandlerHolder* mouse, ContainerHandle container) {
    const ContainerMouseEvent press = {RULECANVAS_MOUSE_LEFT_DOWN, 1, 0, 10.0F, 10.0F, 0, 0};
    if (GetContainerWinMouseEventHandler(container, mouse) && mouse->handler) {
        mouse->handler->table->invoke(mouse->handler, 0, (uintptr_t)&press);
    }
}
