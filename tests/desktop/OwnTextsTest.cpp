#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include "app/Commands.h"
#include "desktop/TestClasses.h"
#include "desktop/host/OwnTexts.h"
#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

QString contents(const QString& file) {
  QFile source(file);
  return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
}

QStringList filesBelow(const QString& directory, const QString& pattern) {
  QStringList files;
  QDirIterator walk(directory, {pattern}, QDir::Files, QDirIterator::Subdirectories);
  while (walk.hasNext()) files.append(walk.next());
  return files;
}

/// The texts between quotes, joined when several stand in a row, as a compiler does.
QString joinedLiterals(const QString& literals) {
  static const QRegularExpression kLiteral(QStringLiteral("\"((?:[^\"\\\\]|\\\\.)*)\""));
  QString joined;
  for (const auto& match : kLiteral.globalMatch(literals)) joined += match.captured(1);
  return joined.replace(QLatin1String("\\n"), QLatin1String("\n"));
}

/// Every text that the sources look up by calling one of these, and every title of a column.
QStringList keysOfSources() {
  static const QRegularExpression kCall(QStringLiteral(
      "(?:localized|localizedString|text|beginLongJob|beginCountingJob)\\(\\s*((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)\\)"));
  static const QRegularExpression kTitles(QStringLiteral("(\"[^\"]+\"), \\d+, "));
  QStringList keys;
  for (const QString& file : filesBelow(QStringLiteral(GLOSSMILL_SOURCES), QStringLiteral("*.cpp"))) {
    if (file.contains(QLatin1String("/cli/"))) continue;
    const QString text = contents(file);
    for (const auto& match : kCall.globalMatch(text)) keys.append(joinedLiterals(match.captured(1)));
    if (!file.endsWith(QLatin1String("Columns.cpp"))) continue;
    for (const auto& match : kTitles.globalMatch(text)) keys.append(joinedLiterals(match.captured(1)));
  }
  return keys;
}

QStringList keysOfInterfaceFiles() {
  QStringList keys;
  for (const QString& file : filesBelow(QStringLiteral(GLOSSMILL_SOURCES), QStringLiteral("*.ui"))) {
    QXmlStreamReader xml(contents(file));
    while (!xml.atEnd()) {
      xml.readNext();
      const bool text = xml.isStartElement() && xml.name() == QLatin1String("string");
      if (text && !xml.attributes().hasAttribute(QStringLiteral("notr"))) keys.append(xml.readElementText());
    }
  }
  return keys;
}

QStringList keysOfCommands() {
  QStringList keys{toQt(kOpenAProjectFirst)};
  for (const Command& command : commands()) keys.append(toQt(command.title));
  for (const ToolBarItem& item : toolBarItems()) keys.append(toQt(item.title));
  for (const MenuId menu : menus()) keys.append(toQt(menuTitle(menu)));
  return keys;
}

int count(const std::string& text, const std::string& part) {
  int found = 0;
  for (std::size_t place = text.find(part); place != std::string::npos; place = text.find(part, place + 1)) ++found;
  return found;
}

}  // namespace

class OwnTextsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyTextIsThereInEveryLanguage_data() {
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QStringLiteral("en");
    QTest::newRow("German") << QStringLiteral("de");
  }

  void everyTextIsThereInEveryLanguage() {
    QFETCH(const QString, language);
    const OwnTexts texts = ownTextsFor({language});
    const QStringList keys = keysOfSources() + keysOfInterfaceFiles() + keysOfCommands();
    QVERIFY(keys.size() > 110);
    QStringList missing;
    for (const QString& key : keys) {
      if (!texts.contains(fromQt(key))) missing.append(key);
    }
    QCOMPARE(missing, QStringList());
  }

  void noTextIsThereForNothing() {
    const QStringList keys = keysOfSources() + keysOfInterfaceFiles() + keysOfCommands();
    QStringList surplus;
    for (const auto& [key, text] : ownTextsFor({QStringLiteral("de")})) {
      if (!keys.contains(toQt(key))) surplus.append(toQt(key));
    }
    QCOMPARE(surplus, QStringList());
  }

  void englishIsTheKey() {
    for (const auto& [key, text] : ownTextsFor({QStringLiteral("en")})) QCOMPARE(toQt(text), toQt(key));
  }

  void translationsKeepTheirPlaceholders() {
    for (const auto& [key, text] : ownTextsFor({QStringLiteral("de")})) {
      QCOMPARE(count(text, "%@"), count(key, "%@"));
      QCOMPARE(count(text, "%ld"), count(key, "%ld"));
      QCOMPARE(count(text, "&"), count(key, "&"));
    }
  }

  void mnemonicsOfAMenuDiffer_data() { everyTextIsThereInEveryLanguage_data(); }

  void mnemonicsOfAMenuDiffer() {
    QFETCH(const QString, language);
    const OwnTexts texts = ownTextsFor({language});
    std::map<MenuId, QString> used;
    for (const Command& command : commands()) {
      const QString title = toQt(texts.find(command.title)->second).toLower();
      const qsizetype sign = title.indexOf(QLatin1Char('&'));
      if (sign < 0) continue;
      QVERIFY2(!used[command.menu].contains(title[sign + 1]), qPrintable(title));
      used[command.menu] += title[sign + 1];
    }
  }

  void theFirstLanguageThatTheProgramSpeaksIsTaken() {
    const auto cancel = [](const QStringList& languages) { return toQt(ownTextsFor(languages).at("Cancel")); };
    QCOMPARE(cancel({QStringLiteral("de-AT"), QStringLiteral("en")}), QStringLiteral("Abbrechen"));
    QCOMPARE(cancel({QStringLiteral("fr-FR"), QStringLiteral("de")}), QStringLiteral("Abbrechen"));
    QCOMPARE(cancel({QStringLiteral("fr")}), QStringLiteral("Cancel"));
    QCOMPARE(cancel({}), QStringLiteral("Cancel"));
  }

  void ownTextsAreParsed() {
    const OwnTexts texts = parseOwnTexts("/* a = b */\n\"a\\n\\\"b\\\"\" = \"c\\\\d\";\n/**/ \"e\"=\"\\tf\"; ");
    QCOMPARE(texts.size(), std::size_t{2});
    QCOMPARE(texts.at("a\n\"b\""), std::string("c\\d"));
    QCOMPARE(texts.at("e"), std::string("\tf"));
  }

  void brokenOwnTextsEndTheReading() {
    for (const char* text : {"", "\"a", "\"a\" =", "\"a\" = \"b\"", "a = b;", "/*", "\"a\\"}) {
      QVERIFY(parseOwnTexts(text).empty());
    }
    QCOMPARE(parseOwnTexts("\"a\" = \"b\"; rest").size(), std::size_t{1});
  }
};

static const TestRegistration<OwnTextsTest> kOwnTextsRegistration("OwnTexts");

}  // namespace glossmill

#include "OwnTextsTest.moc"
