#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "model/ArrayController.h"

namespace glossmill {

/// What the controllers of these tests arrange.
struct Boat {
  std::string name;
  int length = 0;
};

using Boats = ArrayController<Boat>;
using Names = std::vector<std::string>;

inline std::shared_ptr<Boat> boat(const std::string& name, int length = 0) {
  return std::make_shared<Boat>(Boat{name, length});
}

inline std::shared_ptr<Boats::Array> boats(const Names& names) {
  auto array = std::make_shared<Boats::Array>();
  for (const std::string& name : names) array->push_back(boat(name));
  return array;
}

inline Names contentNames(const Boats& controller) {
  Names names;
  for (const Boats::Object& object : *controller.content()) names.push_back(object->name);
  return names;
}

inline Names arrangedNames(const Boats& controller) {
  Names names;
  for (std::size_t row = 0; row < controller.arrangedCount(); ++row)
    names.push_back(controller.arrangedObject(row)->name);
  return names;
}

inline std::string selectedName(const Boats& controller) {
  const Boats::Object selected = controller.selectedObject();
  return selected ? selected->name : "nothing";
}

inline bool byName(const Boat& a, const Boat& b) {
  return a.name < b.name;
}

inline bool byLength(const Boat& a, const Boat& b) {
  return a.length < b.length;
}

inline Boats::Filter holding(const std::string& part) {
  return [part](const Boat& candidate) { return candidate.name.find(part) != std::string::npos; };
}

/// A test with a controller of boats.
class BoatsTest : public testing::Test {
 protected:
  void fill(const Names& names) { controller.setContent(boats(names)); }

  Boats controller;
};

}  // namespace glossmill
