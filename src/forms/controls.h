#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "forms/text_table.h"
#include "model/text_page.h"

// Controls as plain records. They know no screen: a window, a script or a test shows them, each in its own way.
//
// A form writes to a control with the functions of this header. A write that changes a value fires the control's
// change event at once, before it returns; a write of the same value fires nothing. `shown` is called after every
// write that changes anything, for whoever shows the control.

using Event = std::function<void()>;

/// What all controls share.
struct Control
{
    std::string name = {};      // "txtage"; in a control array "Text1(0)"
    std::string caption = {};   // on or beside it
    std::string tip = {};       // what it means, its unit and range
    bool enabled = true;
    bool visible = true;
    Event shown = {};
};

struct Colour
{
    int red = 0, green = 0, blue = 0;   // 0 to 255
    friend bool operator==(const Colour&, const Colour&) = default;
};

struct TextBox : Control
{
    std::string text = {};   // one line, anything
    Event changed = {};
    bool locked = false;                                   // shown, and not typed into
    std::function<bool(const std::string&)> pasted = {};   // whether it took a paste; if not, its text goes in as typed
};

struct Label : Control   // its text is the caption
{
    Colour colour = {};
    std::string heading = {};   // words beside it
};

struct OptionButton;

/// Options of which at most one is on; none may be.
struct OptionGroup
{
    std::vector<OptionButton*> members = {};
};

struct OptionButton : Control
{
    bool chosen = false;
    OptionGroup* group = nullptr;
    Event clicked = {};   // when it goes on
};

struct CheckBox : Control
{
    bool ticked = false;
    Event clicked = {};
};

struct Button : Control
{
    Event clicked = {};
    std::string opens = {};   // the form that it shows, if it shows one
};

struct ScrollBar : Control
{
    int value = 0;
    int min = 0, max = 32767;
    int smallStep = 1, largeStep = 1;
    Event changed = {};
    Event scrolled = {};   // while it is dragged; empty: as `changed`
};

struct ListBox : Control
{
    std::vector<std::string> items = {};
    int selected = -1;
    Event clicked = {};
    bool entered = false;   // Enter or a double click takes an item: the mark may pass over the others without a click
};

struct MenuItem : Control
{
    std::string menu = {};   // name of the menu that it stands in; empty: the menu bar
    bool ticked = false;
    Event clicked = {};       // empty: it is a menu itself
    std::string opens = {};   // the form that it shows, if it shows one
};

/// What a form prints its lines on.
struct TextSurface : Control
{
    TextPage page = {};
};

struct Point
{
    double x = 0, y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

struct LinePrimitive
{
    Point from, to;
};
struct CirclePrimitive
{
    Point centre;
    double radius = 0;
};
struct PointPrimitive
{
    Point at;
};
struct TextPrimitive
{
    std::string text;
    Point at;          // its left upper corner
    double size = 0;   // height of a line of it is about 1.1 of this, in picture units; 0: as the surface has it
};

/// One thing drawn on a picture, in the picture's units.
struct Primitive
{
    std::variant<LinePrimitive, CirclePrimitive, PointPrimitive, TextPrimitive> shape;
    Colour colour = {};
    double width = 1;
};

/// A display list, replayed in order by whoever shows it.
struct Picture : Control
{
    std::vector<Primitive> primitives = {};
    Point size = {};   // right lower corner, in picture units
    Colour background = {255, 255, 255};
    bool isButton = false;   // a press means the same all over it, and can come from the keyboard
    std::function<void(Point)> pressed = {};
    std::function<void(Point)> moved = {};
};

using ControlRef = std::variant<TextBox*, Label*, OptionButton*, CheckBox*, Button*, ScrollBar*, ListBox*, MenuItem*,
                                TextSurface*, Picture*>;

/// A form as everyone outside sees it: its name, its title and each of its controls once.
struct Form
{
    std::string name;
    std::string title;
    std::vector<ControlRef> controls = {};
    Event titleShown = {};
    Event load = {};                         // once it has been built, before it is seen
    Event opened = {};                       // whenever somebody has asked for it, open before or not
    Event unloaded = {};                     // before it goes
    std::function<TextTable()> table = {};   // what it shows as a table, to be copied and saved, if it has one
    Point size = {};                         // what its window opens with, in picture units; 0: as that is laid out
    Event sizeShown = {};
};

[[nodiscard]] Control& common(const ControlRef& control);

/// The control of that name, or nothing.
[[nodiscard]] const ControlRef* findControl(const Form& form, std::string_view name);

/// "Text1" and 0 give "Text1(0)".
[[nodiscard]] std::string arrayName(std::string_view name, int index);

void setText(TextBox& box, const std::string& text);
void setCaption(Control& control, const std::string& caption);
void setColour(Label& label, Colour colour);
void setEnabled(Control& control, bool enabled);
void setVisible(Control& control, bool visible);
void setTicked(CheckBox& box, bool ticked);
void setTicked(MenuItem& item, bool ticked);
void setTitle(Form& form, const std::string& title);
void setSize(Form& form, Point size);

/// Choosing an option clears the others of its group and fires its click; switching one off fires nothing.
void setChosen(OptionButton& option, bool chosen);

/// Holds the value within the bar's range.
void setValue(ScrollBar& bar, long long value);

/// A person's drag: the bar follows, and its scroll event fires instead of its change.
void drag(ScrollBar& bar, long long value);

/// A person lets a dragged bar go: its change event fires.
void release(ScrollBar& bar);

/// Selects an item, -1 for none, and fires the click. An index without an item is held to the list.
void select(ListBox& list, int index);

/// Tells whoever shows a surface, a picture or a list that it has new contents.
void notifyShown(const Control& control);
