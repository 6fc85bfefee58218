#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace glossmill {

/// The test classes of the program by their names.
using TestMaker = std::function<std::unique_ptr<QObject>()>;
std::map<std::string, TestMaker>& testClasses();

template <typename Test>
struct TestRegistration {
  explicit TestRegistration(const char* name) {
    testClasses()[name] = [] { return std::make_unique<Test>(); };
  }
};

}  // namespace glossmill
