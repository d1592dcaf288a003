#include "app/FieldEdges.h"

#include "tests/support/RegisteredTest.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// From 1, no difference, to 21, black on white.
double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QPalette theme(const QColor& window, const QColor& base, const QColor& text) {
    QPalette palette(window);
    palette.setColor(QPalette::Base, base);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    return palette;
}

} // namespace

class FieldEdgesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();

    void edgesAreSeen_data();
    void edgesAreSeen();
    void hintsAreSeen();
};

void FieldEdgesTest::initTestCase() {
    QApplication::setStyle(new FieldEdges(QStyleFactory::create(u"Fusion"_s)));
}

void FieldEdgesTest::edgesAreSeen_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QPalette>("palette");
    const auto dark = theme(QColor(35, 38, 41), QColor(27, 30, 32), QColor(239, 240, 241));
    const auto light = theme(QColor(239, 239, 239), Qt::white, Qt::black);
    for (const auto* field : {"line", "number", "text"}) {
        QTest::addRow("%s in a dark theme", field) << QString::fromLatin1(field) << dark;
        QTest::addRow("%s in a light theme", field) << QString::fromLatin1(field) << light;
    }
}

void FieldEdgesTest::edgesAreSeen() {
    QFETCH(QString, field);
    QFETCH(QPalette, palette);
    std::unique_ptr<QWidget> widget;
    if (field == u"line") {
        widget = std::make_unique<QLineEdit>();
    } else if (field == u"number") {
        auto box = std::make_unique<QSpinBox>();
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        widget = std::move(box);
    } else {
        widget = std::make_unique<QPlainTextEdit>();
    }
    widget->setPalette(palette);
    widget->resize(200, 60);
    const auto picture = widget->grab().toImage();
    const auto inside = palette.color(QPalette::Base);
    double strongest = 0;
    for (int x = 0; x < 3; ++x) {
        strongest = std::max(strongest, contrast(picture.pixelColor(x, 30), inside));
    }
    QVERIFY2(strongest >= 3, qPrintable(QString::number(strongest)));
}

void FieldEdgesTest::hintsAreSeen() {
    auto palette = theme(QColor(35, 38, 41), QColor(27, 30, 32), QColor(239, 240, 241));
    QApplication::style()->polish(palette);
    QCOMPARE(palette.color(QPalette::PlaceholderText).lightness(),
             palette.color(QPalette::Text).lightness());
}

static const RegisteredTest<FieldEdgesTest> registered;
#include "FieldEdgesTest.moc"
