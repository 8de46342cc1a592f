# What drive-editor.sh does. Places are those of windows at the top left of a desktop at 96 dots an inch.
# shellcheck shell=bash disable=SC2154 # programs and pictures are drive-editor.sh's

client_x=4
client_y=23
view_x=$((client_x + 260))
view_y=$((client_y + 48))

in_view() { click $((view_x + $1)) $((view_y + $2)) "${3:-1}"; }
drag_in_view() { drag $((view_x + $1)) $((view_y + $2)) $((view_x + $3)) $((view_y + $4)); }
# A button of the tool bar by its middle.
button() { click $((client_x + $1)) $((client_y + 24)); }
# A row of the tools; the pointer is row 0.
tool() { click $((client_x + 120)) $((client_y + 75 + 22 * $1 + 11)); }
undo_button=443
clear_button=199

# The example window of the kit: a polygon by clicks and Enter, a rectangle, undo and redo, save, and again from the file.
use_kit_window() {
    local file=$pictures/kit.rules.json
    rm -f "$file"
    start kit_window.exe "$(windows_path "$file")"
    sleep 6
    click 330 300
    key p
    click 130 180
    click 420 140
    click 520 330
    click 220 400
    picture kit_drawing
    key Return
    key r
    drag 380 340 600 460
    key ctrl+z
    key s
    check "the kit's window saves a polygon" wait_for holds "$file" '"Polygon 1"'
    check "undo took the rectangle back" lacks "$file" '"Rectangle 1"'
    key ctrl+y
    key s
    check "redo brings it again" wait_for holds "$file" '"Rectangle 1"'
    picture kit_window
    key alt+F4
    check "the kit's window closes" wait_for ended
}

draw_every_type() {
    tool 1; drag_in_view 30 30 130 90
    tool 2; drag_in_view 160 30 260 90
    tool 3; in_view 300 30; in_view 400 30; in_view 380 90; in_view 300 30
    tool 4; in_view 430 30; in_view 530 30; in_view 510 90; in_view 600 60 3
    tool 5; drag_in_view 630 30 730 90
    tool 6; drag_in_view 30 130 130 190
    tool 7; drag_in_view 180 130 200 190
    tool 8; drag_in_view 230 160 330 170
    tool 9; drag_in_view 360 190 460 130
    tool 10; drag_in_view 490 130 590 190
    tool 11; in_view 620 130; in_view 670 190; in_view 720 130; key Return
    tool 12; in_view 760 130; in_view 830 150; in_view 900 130; in_view 900 130 3
    tool 13; in_view 60 260
    tool 15; in_view 160 260
    tool 14; in_view 300 300; in_view 700 450
}

use_editor() {
    local file=$pictures/editor.rules.json type
    rm -f "$file"
    start rule_editor.exe
    sleep 8
    button 135
    draw_every_type
    picture editor_every_type
    key ctrl+s
    sleep 2
    write "$(windows_path "$file")"
    picture editor_save_dialog
    key Return
    for type in Rect OvalShape Polygon VirablePolygon PixelCountShape LineShape VerticalLineShape HorizontalLineShape \
        ArrowLineShape DashLineShape BrokenLine XLineShape CrossShape SpotShape BigCrossShape; do
        check "$type is drawn and saved" wait_for holds "$file" "\"$type\""
    done

    # Select the rectangle, move it by keys and by mouse, and save what undo leaves.
    in_view 80 60
    key Right
    key shift+Down
    key ctrl+s
    check "arrow keys move the selected rule" wait_for lacks "$file" '\[ 256, 455 \]'
    key ctrl+z
    key ctrl+z
    key ctrl+s
    check "undo moves it back" wait_for holds "$file" '\[ 256, 455 \]'
    key Delete
    key ctrl+s
    check "Delete removes the selected rule" wait_for lacks "$file" '"Rectangle 1"'
    button $undo_button
    key ctrl+s
    check "the button Undo brings it back" wait_for holds "$file" '"Rectangle 1"'

    # The menu of the right button: its second item is Delete.
    in_view 210 60 3
    sleep 0.5
    picture editor_menu
    key Down
    key Down
    key Return
    key ctrl+s
    check "the menu deletes" wait_for lacks "$file" '"Oval 1"'

    # A label that is typed into the panel.
    in_view 80 60
    click $((client_x + 160)) $((client_y + 492))
    key ctrl+a
    write yard
    key Return
    key ctrl+s
    check "the panel labels the selected rule" wait_for holds "$file" '"label" : "yard"'

    # Cleared without a question, because it is saved; the end asks, because this is not.
    button $clear_button
    key Escape
    sleep 0.5
    key alt+F4
    sleep 1.5
    picture editor_question
    check "the end asks about unsaved work" running
    key Escape
    sleep 1
    check "Cancel stays" running
    button $undo_button
    picture editor_undone
    key alt+F4
    check "nothing unsaved is left, and the editor ends" wait_for ended
}
