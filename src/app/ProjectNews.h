#pragma once

#include "app/OutsideNews.h"
#include "app/RulesNews.h"
#include "app/SaveNews.h"
#include "app/SaveRestorer.h"
#include "app/WindowNews.h"

namespace glossmill {

/// Whatever brings news of the open project to the bar of its window. Main thread.
struct ProjectNews {
  /// All of it outlives this.
  ProjectNews(const Host& host, ProjectWindowController& project, NewsBoard& board, FileWatch& watch)
      : restorer(host, project),
        saves(host, project, board, restorer),
        outside(host, project, board, watch),
        windows(host, project, board),
        rules(project, board, host.bundle) {}

  SaveRestorer restorer;
  SaveNews saves;
  OutsideNews outside;
  WindowNews windows;
  RulesNews rules;
};

}  // namespace glossmill
