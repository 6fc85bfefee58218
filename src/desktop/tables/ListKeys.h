#pragma once

#include <QAbstractItemView>
#include <QLineEdit>
#include <QObject>

namespace glossmill {

/// Lets the arrow and page keys of a search field move through the list that it narrows. Belongs to the field.
class ListKeys : public QObject {
 public:
  ListKeys(QLineEdit& field, QAbstractItemView& list);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QAbstractItemView& m_list;
};

}  // namespace glossmill
