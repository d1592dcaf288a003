#include "virtualkeyer/window/KeyerWindow.h"

#include "tests/support/RegisteredTest.h"
#include "translations/Translations.h"
#include "virtualkeyer/sound/LiveSidetone.h"
#include "virtualkeyer/window/ScopeTap.h"
#include "virtualkeyer/window/WireTap.h"

#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace virtualkeyer;

class KeyerWindowTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itFitsASmallScreen_data();
    void itFitsASmallScreen();
};

void KeyerWindowTest::itFitsASmallScreen_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"en", "de", "fr", "es", "it", "ja"}) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

/// One of 1280 by 800 where all is twice the size, within the frame that a desktop adds.
void KeyerWindowTest::itFitsASmallScreen() {
    QFETCH(QString, language);
    const Translations translations{QLocale(language)};
    const QStringList arguments{u"quorvel-virtual-keyer"_s};
    const CommandLine commandLine = CommandLine::parse(arguments);
    KeyerLink link;
    WireTap wire;
    ScopeTap scope;
    ScopeTap practice;
    LiveSidetone sidetone;
    KeyerWindow window(commandLine, link, wire, scope, practice, sidetone);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* pages = window.findChild<QTabWidget*>();
    for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        const QSize least = window.minimumSizeHint();
        QVERIFY2(
            least.width() <= 640 && least.height() <= 370,
            qPrintable(u"page %1: %2 by %3"_s.arg(page).arg(least.width()).arg(least.height())));
    }
}

static const RegisteredTest<KeyerWindowTest> registered;
#include "KeyerWindowTest.moc"
