#include "desktop/look/SvgPath.h"

#include <QString>
#include <array>

namespace glossmill {

namespace {

class PathReader {
 public:
  explicit PathReader(QStringView data) : m_rest(data) {}

  QPainterPath read() {
    while (readCommand() && draw()) {
    }
    return m_path;
  }

 private:
  /// A command letter, or the last one again before another number.
  bool readCommand() {
    skipSeparators();
    if (m_rest.isEmpty()) return false;
    if (m_rest.front().isLetter()) {
      m_command = m_rest.front();
      m_rest = m_rest.mid(1);
    } else if (m_command.toUpper() == u'M') {
      m_command = m_command.isUpper() ? QChar(u'L') : QChar(u'l');
    }
    m_origin = m_command.isLower() ? m_path.currentPosition() : QPointF();
    return true;
  }

  /// False, with nothing drawn, when the command is unknown or lacks a number.
  bool draw() {
    switch (m_command.toUpper().unicode()) {
      case u'M':
        if (!readNumbers(2)) return false;
        m_path.moveTo(point(0));
        return true;
      case u'L':
        if (!readNumbers(2)) return false;
        m_path.lineTo(point(0));
        return true;
      case u'H':
        if (!readNumbers(1)) return false;
        m_path.lineTo(m_origin.x() + m_numbers[0], m_path.currentPosition().y());
        return true;
      case u'V':
        if (!readNumbers(1)) return false;
        m_path.lineTo(m_path.currentPosition().x(), m_origin.y() + m_numbers[0]);
        return true;
      case u'C':
        if (!readNumbers(6)) return false;
        m_path.cubicTo(point(0), point(2), point(4));
        return true;
      case u'Z':
        m_path.closeSubpath();
        m_command = QChar();
        return true;
      default:
        return false;
    }
  }

  QPointF point(std::size_t first) const { return m_origin + QPointF(m_numbers[first], m_numbers[first + 1]); }

  bool readNumbers(std::size_t count) {
    for (std::size_t place = 0; place < count; ++place) {
      if (!readNumber(m_numbers[place])) return false;
    }
    return true;
  }

  bool readNumber(double& number) {
    skipSeparators();
    qsizetype length = 0;
    while (length < m_rest.size() && belongsToNumber(length)) ++length;
    number = m_rest.first(length).toDouble();
    m_rest = m_rest.mid(length);
    return length > 0;
  }

  bool belongsToNumber(qsizetype place) const {
    const QChar character = m_rest[place];
    return character.isDigit() || character == u'.' || (character == u'-' && place == 0);
  }

  void skipSeparators() {
    while (!m_rest.isEmpty() && (m_rest.front().isSpace() || m_rest.front() == u',')) m_rest = m_rest.mid(1);
  }

  QStringView m_rest;
  QChar m_command;
  QPointF m_origin;
  std::array<double, 6> m_numbers{};
  QPainterPath m_path;
};

}  // namespace

QPainterPath svgPath(QStringView data) {
  return PathReader(data).read();
}

}  // namespace glossmill
