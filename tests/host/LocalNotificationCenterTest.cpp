#include <gtest/gtest.h>

#include "host/LocalNotificationCenter.h"

namespace glossmill {
namespace {

TEST(LocalNotificationCenter, TellsTheObserversOfAName) {
  LocalNotificationCenter center;
  const int first = 1;
  const int second = 2;
  std::string heard;
  center.addObserver(&first, "saved", [&heard](const void*) { heard += "first "; });
  center.addObserver(&second, "saved", [&heard](const void*) { heard += "second "; });
  center.addObserver(&second, "closed", [&heard](const void*) { heard += "closed "; });
  center.post("saved", nullptr);
  EXPECT_EQ(heard, "first second ");
}

TEST(LocalNotificationCenter, PassesTheObject) {
  LocalNotificationCenter center;
  const int object = 1;
  const void* heard = nullptr;
  center.addObserver(&center, "saved", [&heard](const void* about) { heard = about; });
  center.post("saved", &object);
  EXPECT_EQ(heard, &object);
}

TEST(LocalNotificationCenter, TellsARemovedObserverNothing) {
  LocalNotificationCenter center;
  const int observer = 1;
  int heard = 0;
  center.addObserver(&observer, "saved", [&heard](const void*) { ++heard; });
  center.addObserver(&observer, "closed", [&heard](const void*) { ++heard; });
  center.removeObserver(&observer);
  center.removeObserver(&observer);
  center.post("saved", nullptr);
  center.post("closed", nullptr);
  EXPECT_EQ(heard, 0);
}

TEST(LocalNotificationCenter, AnObserverMayRemoveItselfAndOthersWhileItIsTold) {
  LocalNotificationCenter center;
  const int first = 1;
  const int second = 2;
  std::string heard;
  center.addObserver(&first, "saved", [&](const void*) {
    center.removeObserver(&first);
    center.removeObserver(&second);
    heard += "first ";
  });
  center.addObserver(&second, "saved", [&heard](const void*) { heard += "second "; });
  center.post("saved", nullptr);
  center.post("saved", nullptr);
  EXPECT_EQ(heard, "first ");
}

TEST(LocalNotificationCenter, AnObserverAddedDuringAPostHearsTheNextOne) {
  LocalNotificationCenter center;
  const int late = 1;
  int heard = 0;
  center.addObserver(&center, "saved", [&](const void*) {
    center.removeObserver(&center);
    center.addObserver(&late, "saved", [&heard](const void*) { ++heard; });
  });
  center.post("saved", nullptr);
  EXPECT_EQ(heard, 0);
  center.post("saved", nullptr);
  EXPECT_EQ(heard, 1);
}

}  // namespace
}  // namespace glossmill
