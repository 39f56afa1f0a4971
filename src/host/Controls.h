// The options view and its controls.
//
// Setting a value raises no event; an event tells what the player did, after the control has changed. A reference that
// a reading call returns holds until the next call on the same control.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>

#include "host/Types.h"

namespace ombrel::host {

class Control {
public:
    virtual ~Control() = default;
};

class StaticText : public Control {
public:
    virtual const std::string& Text() const = 0;
    virtual void SetText(std::string_view text) = 0;
};

class PushButton : public Control {
public:
    virtual const std::string& Text() const = 0;
    virtual void SetText(std::string_view text) = 0;

    std::function<void()> Accepted;
};

class Checkbox : public Control {
public:
    virtual bool Checked() const = 0;
    virtual void SetChecked(bool checked) = 0;

    std::function<void(bool checked)> Change;
};

class Edit : public Control {
public:
    virtual const std::string& Text() const = 0;
    virtual void SetText(std::string_view text) = 0;

    std::function<void(const std::string& text)> Change;  // at each key
    std::function<void(bool success)> End;                // the player has finished
};

// A drop-down list. Entries count from 0; -1 is no selection.
class Choice : public Control {
public:
    virtual void Add(std::string_view text, std::string_view data) = 0;
    virtual void Clear() = 0;
    virtual std::int32_t Count() const = 0;
    virtual const std::string& Text(std::int32_t index) const = 0;
    virtual const std::string& Data(std::int32_t index) const = 0;
    virtual std::int32_t Selected() const = 0;
    virtual void SetSelected(std::int32_t index) = 0;

    std::function<void(std::int32_t index)> Change;
};

// A cell of a list: the text of a text column, the flag of a check column, a number of an icon column (sub-cell 0 the
// library of the icon, sub-cell 1 its number).
using Cell = std::variant<std::string, bool, std::int32_t>;

// A table of rows. Columns and rows count from 0.
class List : public Control {
public:
    virtual void Clear() = 0;
    virtual std::int32_t AddRow() = 0;  // returns the new row's number
    virtual void DeleteRow(std::int32_t row) = 0;
    virtual std::int32_t Count() const = 0;

    virtual const Cell& Data(std::int32_t column, std::int32_t row, std::int32_t sub = 0) const = 0;
    virtual void SetData(std::int32_t column, std::int32_t row, Cell value, std::int32_t sub = 0) = 0;
    virtual std::int32_t Color(std::int32_t column, std::int32_t row) const = 0;  // 0x00BBGGRR
    virtual void SetColor(std::int32_t column, std::int32_t row, std::int32_t color) = 0;

    virtual std::int32_t ScrollPosition() const = 0;
    virtual void SetScrollPosition(std::int32_t position) = 0;

    // Moves with every change of a cell's value or of the number of rows, whoever made it: what has been worked out of
    // the list holds while this stands. Never fails and costs no more than reading a number.
    virtual std::uint32_t Revision() const = 0;

    // A click. A click on a check cell has flipped it already.
    std::function<void(std::int32_t column, std::int32_t row)> Change;
};

class Progress : public Control {
public:
    virtual std::int32_t Value() const = 0;
    virtual void SetValue(std::int32_t value) = 0;
};

class Slider : public Control {
public:
    virtual std::int32_t Position() const = 0;
    virtual void SetPosition(std::int32_t position) = 0;

    std::function<void(std::int32_t position)> Change;
};

class Notebook : public Control {
public:
    virtual std::int32_t ActivePage() const = 0;
    virtual void SetActivePage(std::int32_t page) = 0;

    std::function<void(std::int32_t page)> Change;
};

// The options window. It owns its controls.
class View {
public:
    virtual ~View() = default;

    // The control of that name, or nothing.
    virtual host::Control* Control(std::string_view name) = 0;

    virtual Rect Position() const = 0;
    virtual void SetPosition(const Rect& position) = 0;
};

}  // namespace ombrel::host
