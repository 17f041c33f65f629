#pragma once

#include <string>
#include <utility>

namespace tombolario {

class Control;

/// Tells a control that one of its properties has a new value.
void propertyChanged(Control& owner);

/// A property of a control: it reads like a plain value, and tells its control when it is set to
/// another. Setting it to the value that it has does nothing.
template <class Value>
class Property {
 public:
  Property(Control& owner, Value value) : owner_(owner), value_(std::move(value)) {}
  Property(const Property&) = delete;

  Property& operator=(Value value) {
    if (!(value_ == value)) {
      value_ = std::move(value);
      propertyChanged(owner_);
    }
    return *this;
  }
  Property& operator=(const Property& other) { return *this = other.value_; }

  const Value& get() const { return value_; }
  operator const Value&() const { return value_; }
  bool operator==(const Value& other) const { return value_ == other; }

 private:
  Control& owner_;
  Value value_;
};

/// A text that may be given as a number, in plain decimal.
class TextProperty : public Property<std::string> {
 public:
  using Property::Property;
  using Property::operator=;
  TextProperty& operator=(int number) {
    Property::operator=(std::to_string(number));
    return *this;
  }
};

}  // namespace tombolario
