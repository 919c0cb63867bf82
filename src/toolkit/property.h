// Properties of windows and controls: plain members that tell their owner when their value changes.
#pragma once

#include <string>
#include <utility>

namespace toolkit {

/// What of a window or control has changed.
enum class Aspect {
  Bounds,
  Visible,
  Enabled,
  Caption,     ///< of a text box its text
  Value,       ///< the tick of a check box or option, a slider's place, the selected tab
  Items,       ///< of a list, however many
  Appearance,  ///< colours, font, alignment, border, background, picture
  Tool_Tip,
  Selection,
  Default_Button,
  Held,
  Pointer,
  Drag_Tip,  ///< the text beside a slider that is being dragged
};

class Property_Owner {
 public:
  virtual void Changed(Aspect aspect) = 0;

 protected:
  ~Property_Owner() = default;
};

/// A value that reads like a member and tells of a change. Setting it to its present value does nothing.
template <class T>
class Property {
 public:
  Property(Property_Owner& owner, Aspect aspect, T value = T())
      : owner_(owner), value_(std::move(value)), aspect_(aspect) {}
  Property(const Property&) = delete;
  Property& operator=(const Property&) = delete;
  ~Property() = default;

  template <class U>
  Property& operator=(const U& value) {
    if (value_ == value) return *this;
    value_ = value;
    owner_.Changed(aspect_);
    return *this;
  }

  /// Takes a value that the user gave it. The window system shows it already and isn't notified.
  void Keep(T value) { value_ = std::move(value); }

  operator const T&() const { return value_; }  // NOLINT: a property stands for its value
  const T& operator()() const { return value_; }

  friend bool operator==(const Property& property, const T& value) { return property.value_ == value; }

 private:
  Property_Owner& owner_;
  T value_;
  Aspect aspect_;
};

}  // namespace toolkit
