#pragma once

#include <QString>
#include <Qt>
#include <functional>
#include <string_view>
#include <utility>

#include "app/DisplayTransformers.h"

namespace glossmill {

enum class ColumnFit {
  Width,  ///< as wide as it says, at first
  Rest,   ///< takes what the others leave
};

/// One column of a table of records: all there is to know about it.
template <typename Record>
struct Column {
  template <typename Value>
  using Of = std::function<Value(const Record&)>;

  Column(std::string_view shownTitle, int pixels, Of<QString> textOf)
      : title(shownTitle), width(pixels), text(std::move(textOf)) {}

  // What most columns do without, to be added where a column is listed.
  Column takingTheRest() { return fit = ColumnFit::Rest, *this; }
  Column shownAt(int number) { return place = number, *this; }
  Column colored(Of<Color> colorOf) { return color = std::move(colorOf), *this; }
  Column aligned(std::function<Qt::Alignment()> towards) { return alignment = std::move(towards), *this; }
  Column asBar(Of<int> percentOf) { return percent = std::move(percentOf), *this; }

  std::string_view title;  ///< English, key of the program's texts; may be empty
  int width;               ///< pixels
  ColumnFit fit = ColumnFit::Width;
  int place = -1;  ///< from the left, where it is another than among the columns
  Of<QString> text;
  Of<Color> color;                           ///< of the text; empty: black
  std::function<Qt::Alignment()> alignment;  ///< of the text; empty: where a line begins
  Of<int> percent;                           ///< a bar from 0 to 100 in the place of the text
};

}  // namespace glossmill
