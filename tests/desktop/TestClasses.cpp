#include "desktop/TestClasses.h"

namespace glossmill {

std::map<std::string, TestMaker>& testClasses() {
  static std::map<std::string, TestMaker> classes;
  return classes;
}

}  // namespace glossmill
