#include "platform/MainQueue.h"

#include "tests/support/RegisteredTest.h"

#include <QEventLoop>
#include <QRegularExpression>
#include <QTest>
#include <QThread>

#include <array>
#include <atomic>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class MainQueueTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void workRunsInOrderAndOnlyFromTheEventLoop() {
        MainQueue queue;
        QList<int> order;
        for (int number = 0; number < 5; ++number) {
            queue.async([&order, number] { order.append(number); });
        }
        QCOMPARE(order, QList<int>());
        QTRY_COMPARE(order, (QList{0, 1, 2, 3, 4}));
    }

    void eachThreadsWorkKeepsItsOrder() {
        MainQueue queue;
        constexpr int each = 2000;
        std::array<int, 2> next{};
        bool isInOrder = true;
        {
            const auto add = [&](size_t thread) {
                for (int number = 0; number < each; ++number) {
                    queue.async([&, thread, number] {
                        isInOrder = isInOrder && next[thread] == number;
                        ++next[thread];
                    });
                }
            };
            const std::jthread one(add, 0);
            const std::jthread two(add, 1);
        }
        QTRY_COMPARE(next[0] + next[1], 2 * each);
        QVERIFY(isInOrder);
    }

    void itMayEndOnAnotherThread() {
        auto queue = std::make_shared<MainQueue>();
        queue->async([] {});
        queue->shutDown();
        QTest::failOnWarning(QRegularExpression(u"Socket notifiers"_s));
        std::jthread([last = std::exchange(queue, nullptr)]() mutable { last.reset(); }).join();
        QTest::qWait(1); // a notifier that is left is told of its descriptor
    }

    void syncReturnsWhenTheWorkHasRunOnTheMainThread() {
        MainQueue queue;
        QThread* ranOn = nullptr;
        std::atomic<int> result = -1;
        const std::jthread worker([&](const std::stop_token& stop) {
            const bool hasRun = queue.sync([&] { ranOn = QThread::currentThread(); }, stop);
            result = hasRun && ranOn != nullptr ? 1 : 0;
        });
        QTRY_COMPARE(result.load(), 1);
        QCOMPARE(ranOn, thread());
    }

    void syncGivesUpWorkThatHasNotBegun() {
        MainQueue queue;
        bool hasRun = false;
        std::atomic<bool> wasRun = true;
        {
            const std::jthread worker([&](const std::stop_token& stop) {
                wasRun = queue.sync([&] { hasRun = true; }, stop);
            });
            std::this_thread::sleep_for(5ms);
            // The end of the worker stops and awaits it, with no event loop running.
        }
        QVERIFY(!wasRun);
        bool isLater = false;
        queue.async([&] { isLater = true; });
        QTRY_VERIFY(isLater);
        QVERIFY(!hasRun);
    }

    void syncGivesUpBeforeItBegins() {
        MainQueue queue;
        std::stop_source source;
        source.request_stop();
        bool hasRun = false;
        QVERIFY(!queue.sync([&] { hasRun = true; }, source.get_token()));
        bool isLater = false;
        queue.async([&] { isLater = true; });
        QTRY_VERIFY(isLater);
        QVERIFY(!hasRun);
    }

    void workMayEndTheWorkerThatWaitsForIt() {
        MainQueue queue;
        std::atomic<bool> wasRun = true;
        std::jthread worker;
        bool isJoined = false;
        worker = std::jthread([&](const std::stop_token& stop) {
            wasRun = queue.sync(
                [&] {
                    worker.request_stop();
                    worker.join();
                    isJoined = true;
                },
                stop);
        });
        QTRY_VERIFY(isJoined);
        QVERIFY(!wasRun);
    }

    void laterWorkRunsInAnEventLoopOfEarlierWork() {
        MainQueue queue;
        QStringList order;
        QEventLoop loop;
        queue.async([&] {
            order.append(QStringLiteral("modal"));
            loop.exec();
            order.append(QStringLiteral("answered"));
        });
        queue.async([&] { order.append(QStringLiteral("meanwhile")); });
        queue.async([&] { loop.quit(); });
        queue.async([&] { order.append(QStringLiteral("after")); });
        QTRY_COMPARE(order.size(), 4);
        QCOMPARE(order.mid(0, 2),
                 (QStringList{QStringLiteral("modal"), QStringLiteral("meanwhile")}));
    }

    void workIsNotRunInsideAnOperation() {
        MainQueue queue;
        bool hasRun = false;
        {
            const std::jthread worker([&] { queue.async([&] { hasRun = true; }); });
        }
        QVERIFY(!hasRun);
        QTRY_VERIFY(hasRun);
    }

    void shutDownDropsWorkAndItsCaptures() {
        MainQueue queue;
        const auto captured = std::make_shared<int>(1);
        bool hasRun = false;
        queue.async([captured, &hasRun] { hasRun = true; });
        QCOMPARE(captured.use_count(), 2L);
        queue.shutDown();
        QCOMPARE(captured.use_count(), 1L);
        queue.async([captured, &hasRun] { hasRun = true; });
        QCOMPARE(captured.use_count(), 1L);
        QCoreApplication::processEvents();
        QVERIFY(!hasRun);
    }

    void workThatHasRunLetsGoOfItsCaptures() {
        MainQueue queue;
        const auto captured = std::make_shared<int>(1);
        queue.async([captured] {});
        QTRY_COMPARE(captured.use_count(), 1L);
    }

    void shutDownWakesThoseWhoWait() {
        MainQueue queue;
        const std::stop_source neverStopped;
        bool wasRun = true;
        std::thread worker([&] { wasRun = queue.sync([] {}, neverStopped.get_token()); });
        std::this_thread::sleep_for(5ms);
        queue.shutDown();
        worker.join();
        QVERIFY(!wasRun);
        QVERIFY(!queue.sync([] {}, neverStopped.get_token()));
    }

    void manyWorkersMayWaitAtOnce() {
        MainQueue queue;
        int runs = 0;
        std::vector<std::jthread> workers;
        workers.reserve(8);
        for (int number = 0; number < 8; ++number) {
            workers.emplace_back([&](const std::stop_token& stop) {
                for (int round = 0; round < 50; ++round) {
                    queue.sync([&] { ++runs; }, stop);
                }
            });
        }
        QTRY_COMPARE(runs, 400);
    }
};

static const RegisteredTest<MainQueueTest> registered;
#include "MainQueueTest.moc"
