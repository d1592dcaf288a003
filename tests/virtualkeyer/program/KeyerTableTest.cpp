#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/NamedProfiles.h"
#include "virtualkeyer/pty/NamedTroubles.h"

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(path));
    }
    return QString::fromUtf8(file.readAll());
}

QString unquoted(const QString& cell) {
    return cell.trimmed().remove(u'`');
}

/// What the table of a section has in one of its columns.
QStringList column(const QString& section, qsizetype number) {
    QStringList cells;
    for (const QString& line : section.split(u'\n')) {
        if (line.startsWith("| `"_L1)) {
            cells += unquoted(line.split(u'|').at(number + 1));
        }
    }
    return cells;
}

template <typename Named>
QStringList namesOf(std::span<const Named> all) {
    QStringList names;
    for (const Named& each : all) {
        names += QString::fromUtf8(each.name.data(), static_cast<qsizetype>(each.name.size()));
    }
    return names;
}

/// The files of tests by their names, without the ".cpp" of a class.
QHash<QString, QString> testFiles() {
    QHash<QString, QString> files;
    QDirIterator each(QStringLiteral(SOURCE_DIRECTORY "/tests"), {u"*.cpp"_s, u"*.py"_s},
                      QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        files.insert(each.fileName().remove(QRegularExpression(u"\\.cpp$"_s)), path);
    }
    return files;
}

} // namespace

/// The table of what the application does with each kind of keyer and each trouble of the line.
class KeyerTableTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void everyKindOfKeyerHasItsRow();
    void everyTroubleHasItsRow();
    void everyRowHasItsTest();

  private:
    QString _kinds;
    QString _troubles;
};

void KeyerTableTest::init() {
    const QStringList sections =
        contentOf(QStringLiteral(SOURCE_DIRECTORY "/docs/keyers.md")).split(u"\n## "_s);
    QCOMPARE(sections.size(), 3);
    _kinds = sections.at(1);
    _troubles = sections.at(2);
}

void KeyerTableTest::everyKindOfKeyerHasItsRow() {
    QStringList rows = column(_kinds, 0);
    QStringList names = namesOf(virtualkeyer::namedProfiles());
    rows.sort();
    names.sort();
    QCOMPARE(rows, names);
}

void KeyerTableTest::everyTroubleHasItsRow() {
    QStringList rows = column(_troubles, 0);
    QStringList names = namesOf(virtualkeyer::namedTroubles());
    rows.sort();
    names.sort();
    QCOMPARE(rows, names);
}

void KeyerTableTest::everyRowHasItsTest() {
    const auto files = testFiles();
    for (const QString& cell : column(_kinds, 3) + column(_troubles, 3)) {
        QVERIFY(!cell.isEmpty());
        for (const QString& test : cell.split(u", "_s)) {
            const QString name = test.section(u"::"_s, 0, 0);
            const QString function = test.section(u"::"_s, 1);
            QVERIFY2(files.contains(name), qPrintable(test));
            const QString definition = name.endsWith(".py"_L1) ? u"    def %1("_s.arg(function)
                                                               : u"\nvoid %1() {"_s.arg(test);
            QVERIFY2(function.isEmpty() || contentOf(files.value(name)).contains(definition),
                     qPrintable(test));
        }
    }
}

static const RegisteredTest<KeyerTableTest> registered;
#include "KeyerTableTest.moc"
