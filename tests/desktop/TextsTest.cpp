#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "app/Commands.h"
#include "desktop/LaunchArguments.h"
#include "desktop/TestClasses.h"
#include "desktop/host/QtText.h"
#include "desktop/host/WidgetPanels.h"
#include "desktop/look/Icons.h"
#include "desktop/look/LanguageDirection.h"
#include "desktop/look/ReadableColor.h"
#include "desktop/tables/CellText.h"
#include "desktop/windows/EditorText.h"
#include "host/EmbeddedBundle.h"

namespace glossmill {

class TextsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void textsComeThroughTheToolkitUnchanged() {
    for (const std::string& text :
         {std::string(), std::string("plain"), std::string("\xC3\xA4\xE6\x97\xA5\xF0\x9F\x98\x80"),
          std::string("a\0b", 3), std::string("x\xED\xA0\xBDy"), std::string("\xED\xB0\x80")}) {
      QCOMPARE(fromQt(toQt(text)), text);
    }
    QCOMPARE(toQt("a\xFFz"), QStringLiteral("a\uFFFDz"));
    QCOMPARE(fromQt(QString(QChar(0xD83D)) + QChar(0xDE00)), std::string("\xF0\x9F\x98\x80"));
  }

  void editorsGetAndGiveTheSameText() {
    const QString text = QStringLiteral("a\r\nb\u2028c\u2029d\u00A0e") + QChar(0xFDD0);
    QVERIFY(!toEditorText(text).contains(QLatin1Char('\r')));
    QCOMPARE(fromEditorText(toEditorText(text)), text);
    QCOMPARE(fromEditorText(QStringLiteral("a\u2029b\u2028c")), QStringLiteral("a\nb\nc"));
  }

  void cellsShowOneLine() {
    QCOMPARE(cellText("a\nb\r\nc"), QStringLiteral("a\u21B5b\u21B5c"));
    QVERIFY(cellText(std::string(5000, 'x')).size() <= 400);
    const QString cut = cellText("x" + std::string(5000, '\xC3').replace(0, 0, "") + "");
    QVERIFY(cut.size() <= 400);
    std::string umlauts = "x";
    for (int number = 0; number < 500; ++number) umlauts += "\xC3\xA4";
    QVERIFY(!cellText(umlauts).contains(QChar(QChar::ReplacementCharacter)));
  }

  void languagesKnowTheirDirection() {
    for (const char* code : {"ar", "he", "fa", "ur", "ara", "heb", "ar-EG", "ur_PK", "iw"}) {
      QCOMPARE(languageDirection(code), Qt::RightToLeft);
    }
    for (const char* code : {"", "de", "en", "ja", "arm", "pt-BR", "Arabic"}) {
      QCOMPARE(languageDirection(code), Qt::LeftToRight);
    }
  }

  void coloursCanBeReadOnLightAndDark() {
    QPalette light(Qt::lightGray);
    light.setColor(QPalette::Base, Qt::white);
    QPalette dark(Qt::darkGray);
    dark.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x24));
    for (const QPalette& palette : {light, dark}) {
      for (const Color& color : {kRedColor, kGreenColor, kBlueColor}) {
        QVERIFY(contrast(readableColor(color, palette), palette.color(QPalette::Base)) >= 4.5);
      }
      QCOMPARE(readableColor(kBlackColor, palette), palette.color(QPalette::Text));
    }
    QVERIFY(readableColor(kRedColor, dark).red() > readableColor(kRedColor, dark).green());
    QCOMPARE(qRound(contrast(Qt::black, Qt::white)), 21);
  }

  void picturesAreDrawnInTheColourOfButtonTexts() {
    const QPalette before = QGuiApplication::palette();
    const QIcon open = icon(QStringLiteral("open"));
    for (const QColor& color : {QColor(200, 30, 40), QColor(230, 240, 250)}) {
      QPalette palette = before;
      palette.setColor(QPalette::ButtonText, color);
      QGuiApplication::setPalette(palette);
      const QImage picture = open.pixmap(96, 96).toImage();
      int inked = 0;
      for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) inked += picture.pixelColor(x, y) == color ? 1 : 0;
      }
      QVERIFY2(inked > 100, qPrintable(color.name()));
    }
    QGuiApplication::setPalette(before);
  }

  void everyToolHasAPicture() {
    for (const ToolBarItem& item : toolBarItems()) {
      const QImage picture = icon(toQt(item.icon)).pixmap(48, 48).toImage();
      QVERIFY(!picture.isNull());
      bool inked = false;
      for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) inked = inked || qAlpha(picture.pixel(x, y)) > 128;
      }
      QVERIFY2(inked, qPrintable(toQt(item.icon)));
    }
    QVERIFY(icon(QStringLiteral("nothing")).isNull());
  }

  void anAlertTakesNothingForMarkup() {
    MainThreadMailbox mailbox;
    const EmbeddedBundle bundle{EmbeddedBundle::StringsTable()};
    WidgetPanels panels(mailbox, bundle);
    QStringList shown;
    QTimer::singleShot(0, this, [&shown] {
      for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* box = qobject_cast<QMessageBox*>(window);
        if (!box || !box->isVisible()) continue;
        for (QLabel* label : box->findChildren<QLabel*>()) {
          if (!label->text().isEmpty() && label->textFormat() == Qt::PlainText) shown.append(label->text());
        }
        box->accept();
      }
    });
    AlertRequest request;
    request.message = "<i>a</i>\u202E";
    request.informativeText = "<b>b</b>\x1B";
    request.defaultButton = "Ok";
    panels.runAlert(request);
    shown.sort();
    QCOMPARE(shown, (QStringList{QStringLiteral("<b>b</b>\uFFFD"), QStringLiteral("<i>a</i><U+202E>")}));
  }

  void theArgumentsOfALaunchAreRead() {
    const auto read = [](std::vector<const char*> arguments) {
      arguments.insert(arguments.begin(), "glossmill");
      return readLaunchArguments(static_cast<int>(arguments.size()), arguments.data(), "1.2");
    };
    QVERIFY(!read({}).directory && read({}).answer.empty() && read({}).complaint.empty());
    QCOMPARE(read({"--version"}).answer, std::string("glossmill 1.2\n"));
    QVERIFY(read({"--help"}).answer.starts_with("Usage: glossmill [--rules RULES] [DIR]\n"));
    QCOMPARE(read({"/"}).directory->path(), std::string("/"));
    QCOMPARE(read({"/usr/../usr/"}).directory->path(), std::string("/usr"));
    QCOMPARE(read({"/no/such"}).complaint, std::string("glossmill: there is no directory /no/such\n"));
    QVERIFY(!read({"/no/such"}).directory);
    QCOMPARE(read({"--rules", "xcode", "/"}).rules, std::optional(RuleSet::Xcode));
    QCOMPARE(read({"--rules", "xcode", "/"}).directory->path(), std::string("/"));
    QCOMPARE(read({"/", "--rules=classic"}).rules, std::optional(RuleSet::Classic));
    QVERIFY(!read({"/"}).rules);
    for (const auto& wrong : {std::vector{"--rules"}, std::vector{"--rules", "other"}, std::vector{"--rules="}}) {
      QCOMPARE(read(wrong).complaint, std::string("glossmill: --rules takes classic or xcode\n"));
    }
  }
};

static const TestRegistration<TextsTest> kTextsRegistration("Texts");

}  // namespace glossmill

#include "TextsTest.moc"
