#pragma once

#include <QProxyStyle>

namespace glossmill {

/// The style that the program is looked at and tested in, on any machine the same: nothing slides or fades.
class StillStyle : public QProxyStyle {
 public:
  StillStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace glossmill
