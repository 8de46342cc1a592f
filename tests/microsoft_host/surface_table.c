/* Calls a surface by the places of its table, which c_host.c checks one by one, in their order. */
#include <rulecanvas/rulecanvas.h>

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
