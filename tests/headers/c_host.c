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

/* Calls a surface by the places of its table, in their order. */
void DrawByTable(IContainerGraphics* surface);

void DrawByTable(IContainerGraphics* surface) {
    const IContainerGraphicsTable* const table = surface->table;
    const PointF a = {1, 2};
    const PointF b = {3, 4};
    const ColorF colour = {5, 6, 7, 8};
    const TextStyle style = {{9, 10, 11, 12}, 13, "face"};
    const ClientRect clip = {14, 15, 16, 17};
    table->DrawLine(surface, &a, &b, 1, &colour, 2);
    table->DrawText(surface, &a, &style, "text", 0, 1);
    table->FillEllipse(surface, &a, &b, 3, colour, &style.colour);
    table->DrawEllipse(surface, &a, &b, 4, &colour);
    table->DrawRectangle(surface, &a, &b, 5, &colour, 6);
    const PointF size = {table->MeasureText(surface, style, "w"), table->MeasureTextHeight(surface, style, "h")};
    table->DrawTextAtPoints(surface, "caption", &size, 1, colour, 32, clip, 1);
    table->BeginLayer(surface);
    table->EndLayer(surface, 18, 19);
    table->SetLayerSize(surface, 20, 21);
    table->FillRectangle(surface, &a, &b, &colour);
}
