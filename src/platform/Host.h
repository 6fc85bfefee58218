#pragma once

#include "platform/ApplicationServices.h"
#include "platform/Bundle.h"
#include "platform/Files.h"
#include "platform/InterfaceFiles.h"
#include "platform/Menu.h"
#include "platform/NotificationCenter.h"
#include "platform/Panels.h"
#include "platform/SaveDisk.h"
#include "platform/Sheets.h"
#include "platform/SystemLog.h"
#include "platform/Threads.h"
#include "platform/UserDefaults.h"

namespace glossmill {

/// Everything the program expects of the system it runs on. The parts outlive whoever is given a Host.
struct Host {
  Files& files;
  UserDefaults& defaults;
  NotificationCenter& notifications;
  Threads& threads;
  Panels& panels;
  Sheets& sheets;
  InterfaceFiles& interfaces;
  Menu& recentMenu;
  SystemLog& systemLog;
  Bundle& bundle;
  Application& application;
  SaveDisk& saves;
};

}  // namespace glossmill
