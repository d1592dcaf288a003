#include "platform/NotificationCenter.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class NotificationCenterTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void carriesNameObjectAndInformation();
    void tellsOnlyThoseWhoAskedForTheName();
    void tellsInOrderOfRegistration();
    void tellsBeforePostReturns();
    void anObserverThatHasGoneIsNotTold();
    void forgetsAllThatAnObserverAskedFor();
    void anObserverThatGoesMeanwhileIsNotTold();
    void anObserverThatIsRemovedMeanwhileIsNotTold();
    void anObserverThatComesMeanwhileIsToldNextTime();
    void aHandlerMayPost();
    void anObserverMayAskTwice();

  private:
    [[nodiscard]] NotificationCenter::Handler note(const QString& what) {
        return [this, what](const Notification&) { _heard.append(what); };
    }

    QStringList _heard;
};

void NotificationCenterTest::carriesNameObjectAndInformation() {
    NotificationCenter center;
    QObject observer;
    QObject sender;
    Notification received;
    center.addObserver(&observer, u"n"_s, [&](const Notification& each) { received = each; });
    center.post(u"n"_s, &sender, {{u"key"_s, 5}});
    QCOMPARE(received.name, u"n"_s);
    QCOMPARE(received.object, &sender);
    QCOMPARE(received.userInfo, (QHash<QString, QVariant>{{u"key"_s, 5}}));
}

void NotificationCenterTest::tellsOnlyThoseWhoAskedForTheName() {
    _heard.clear();
    NotificationCenter center;
    QObject observer;
    center.addObserver(&observer, u"n"_s, note(u"n"_s));
    center.addObserver(&observer, u"m"_s, note(u"m"_s));
    center.post(u"m"_s, nullptr);
    center.post(u"x"_s, nullptr);
    QCOMPARE(_heard, QStringList{u"m"_s});
}

void NotificationCenterTest::tellsInOrderOfRegistration() {
    _heard.clear();
    NotificationCenter center;
    QObject first;
    QObject second;
    center.addObserver(&first, u"n"_s, note(u"1"_s));
    center.addObserver(&second, u"n"_s, note(u"2"_s));
    center.addObserver(&first, u"n"_s, note(u"3"_s));
    center.post(u"n"_s, nullptr);
    QCOMPARE(_heard, QStringList({u"1"_s, u"2"_s, u"3"_s}));
}

void NotificationCenterTest::tellsBeforePostReturns() {
    _heard.clear();
    NotificationCenter center;
    QObject observer;
    center.addObserver(&observer, u"n"_s, note(u"told"_s));
    center.post(u"n"_s, nullptr);
    _heard.append(u"returned"_s);
    QCOMPARE(_heard, QStringList({u"told"_s, u"returned"_s}));
}

void NotificationCenterTest::anObserverThatHasGoneIsNotTold() {
    _heard.clear();
    NotificationCenter center;
    {
        QObject observer;
        center.addObserver(&observer, u"n"_s, note(u"gone"_s));
    }
    center.post(u"n"_s, nullptr);
    QVERIFY(_heard.isEmpty());
}

void NotificationCenterTest::forgetsAllThatAnObserverAskedFor() {
    _heard.clear();
    NotificationCenter center;
    QObject removed;
    QObject other;
    center.addObserver(&removed, u"n"_s, note(u"removed"_s));
    center.addObserver(&removed, u"m"_s, note(u"removed"_s));
    center.addObserver(&other, u"n"_s, note(u"other"_s));
    center.removeObserver(&removed);
    center.post(u"n"_s, nullptr);
    center.post(u"m"_s, nullptr);
    QCOMPARE(_heard, QStringList{u"other"_s});
}

void NotificationCenterTest::anObserverThatGoesMeanwhileIsNotTold() {
    _heard.clear();
    NotificationCenter center;
    QObject first;
    auto second = std::make_unique<QObject>();
    center.addObserver(&first, u"n"_s, [&](const Notification&) { second.reset(); });
    center.addObserver(second.get(), u"n"_s, note(u"second"_s));
    center.post(u"n"_s, nullptr);
    QVERIFY(_heard.isEmpty());
}

void NotificationCenterTest::anObserverThatIsRemovedMeanwhileIsNotTold() {
    _heard.clear();
    NotificationCenter center;
    QObject first;
    QObject second;
    center.addObserver(&first, u"n"_s, [&](const Notification&) {
        center.removeObserver(&second);
        center.removeObserver(&first);
        _heard.append(u"first"_s);
    });
    center.addObserver(&second, u"n"_s, note(u"second"_s));
    center.post(u"n"_s, nullptr);
    center.post(u"n"_s, nullptr);
    QCOMPARE(_heard, QStringList{u"first"_s});
}

void NotificationCenterTest::anObserverThatComesMeanwhileIsToldNextTime() {
    _heard.clear();
    NotificationCenter center;
    QObject observer;
    QObject late;
    center.addObserver(&observer, u"n"_s, [&](const Notification&) {
        center.removeObserver(&observer);
        center.addObserver(&late, u"n"_s, note(u"late"_s));
    });
    center.post(u"n"_s, nullptr);
    QVERIFY(_heard.isEmpty());
    center.post(u"n"_s, nullptr);
    QCOMPARE(_heard, QStringList{u"late"_s});
}

void NotificationCenterTest::aHandlerMayPost() {
    _heard.clear();
    NotificationCenter center;
    QObject observer;
    center.addObserver(&observer, u"outer"_s, [&](const Notification&) {
        center.post(u"inner"_s, nullptr);
        _heard.append(u"outer"_s);
    });
    center.addObserver(&observer, u"inner"_s, note(u"inner"_s));
    center.post(u"outer"_s, nullptr);
    QCOMPARE(_heard, QStringList({u"inner"_s, u"outer"_s}));
}

void NotificationCenterTest::anObserverMayAskTwice() {
    _heard.clear();
    NotificationCenter center;
    QObject observer;
    center.addObserver(&observer, u"n"_s, note(u"1"_s));
    center.addObserver(&observer, u"n"_s, note(u"1"_s));
    center.post(u"n"_s, nullptr);
    QCOMPARE(_heard.size(), 2);
}

static const RegisteredTest<NotificationCenterTest> registered;
#include "NotificationCenterTest.moc"
