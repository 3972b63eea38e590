#include "messages/asyncerrorqueue.h"
#include "messages/errorreporting.h"
#include "messages/exceptionlogging.h"
#include "parameters/genericexception.h"
#include "parameters/invalidargumentexception.h"

#include <QWidget>
#include <QtTest>

#include <atomic>
#include <limits>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

// Records every message while alive; QTest's own handler is back afterwards.
class MessageCapture
{
public:
    MessageCapture()
    {
        s_messages.clear();
        m_previous = qInstallMessageHandler(&MessageCapture::handler);
    }
    ~MessageCapture() { qInstallMessageHandler(m_previous); }
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    struct Entry
    {
        QtMsgType type;
        QString category;
        QString text;
    };
    static QList<Entry> messages() { return s_messages; }

private:
    static void handler(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        s_messages.append({ type, QString::fromLatin1(context.category ? context.category : ""), text });
    }
    static QList<Entry> s_messages;
    QtMessageHandler m_previous;
};
QList<MessageCapture::Entry> MessageCapture::s_messages;

struct Received
{
    AsyncErrorQueue::ErrorSeverity severity;
    QString text;
    QString details;
    QWidget* parent;
};

class Receiver : public QObject
{
    Q_OBJECT
public:
    QList<Received> received;
    QList<QThread*> threads;
public slots:
    void onDisplayError(AsyncErrorQueue::ErrorSeverity severity, QString text, QString details, QWidget* parent)
    {
        received.append({ severity, text, details, parent });
        threads.append(QThread::currentThread());
    }
};

// Runs the event loop until the queue has nothing waiting and every posted event is handled.
void drain(AsyncErrorQueue* queue)
{
    for (int i = 0; i < 100 && queue->count() > 0; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    QCoreApplication::processEvents();
}

} // namespace

class TestErrorReporting : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void severitiesAreStepsOfTen();
    void threeReportsComeOutNewestFirst();
    void unnamedSeveritiesPassUnchanged_data();
    void unnamedSeveritiesPassUnchanged();
    void reportsInterleavedWithTheEventLoop();
    void nothingIsEmittedInsideReportErrorAsync();
    void clearAfterReportGivesNoSignal();
    void countFollowsTheQueue();
    void slotMayReportAgain();
    void displayErrorIsEmittedOnTheQueueThread();
    void globalQueueIsOneObject();
    void showWarningMessageLogsAndQueues();
    void showWarningMessageWithoutDetails();
    void showCriticalMessageLogsAndQueues();
    void showErrorMessageLogsNothing();
    void showExceptionIgnoresParent_data();
    void showExceptionIgnoresParent();
    void showExceptionWithText();
    void showUnexpectedException();
    void exceptionStreamOperator();
    void exceptionStreamOperatorWithoutSpacing();
    void loggingPatternSecondLine();
    void loggingGoesToTheDefaultCategory();
    void manyThreadsLoseNothing();
    void manyThreadsThroughTheGlobalQueue();

private:
    Receiver m_globalReceiver;
};

void TestErrorReporting::init()
{
    GetTheGlobalAsyncErrorQueue()->clear();
    QCoreApplication::processEvents();
    m_globalReceiver.received.clear();
    m_globalReceiver.threads.clear();
    static bool connected = false;
    if (!connected) {
        connected = QObject::connect(GetTheGlobalAsyncErrorQueue(),
            SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)), &m_globalReceiver,
            SLOT(onDisplayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)));
        QVERIFY(connected);
    }
}

void TestErrorReporting::severitiesAreStepsOfTen()
{
    QCOMPARE(int(AsyncErrorQueue::Critical), 10);
    QCOMPARE(int(AsyncErrorQueue::Error), 20);
    QCOMPARE(int(AsyncErrorQueue::Warning), 30);
}

void TestErrorReporting::threeReportsComeOutNewestFirst()
{
    AsyncErrorQueue queue;
    QSignalSpy spy(&queue, SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)));
    QWidget parentWidget;

    queue.reportErrorAsync(AsyncErrorQueue::Critical, "first", "d1", nullptr);
    queue.reportErrorAsync(AsyncErrorQueue::Error, "second", "d2", &parentWidget);
    queue.reportErrorAsync(AsyncErrorQueue::Warning, "third", QString(), nullptr);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(queue.count(), 3);

    drain(&queue);
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(0).at(1).toString(), QString("third"));
    QCOMPARE(spy.at(0).at(0).value<AsyncErrorQueue::ErrorSeverity>(), AsyncErrorQueue::Warning);
    QCOMPARE(spy.at(1).at(1).toString(), QString("second"));
    QCOMPARE(spy.at(1).at(2).toString(), QString("d2"));
    QCOMPARE(spy.at(1).at(3).value<QWidget*>(), &parentWidget);
    QCOMPARE(spy.at(2).at(1).toString(), QString("first"));
    QCOMPARE(spy.at(2).at(0).value<AsyncErrorQueue::ErrorSeverity>(), AsyncErrorQueue::Critical);
    QCOMPARE(queue.count(), 0);
}

void TestErrorReporting::unnamedSeveritiesPassUnchanged_data()
{
    QTest::addColumn<int>("severity");
    QTest::newRow("0") << 0;
    QTest::newRow("11") << 11;
    QTest::newRow("40") << 40;
    QTest::newRow("-1") << -1;
    QTest::newRow("INT_MAX") << std::numeric_limits<int>::max();
    QTest::newRow("INT_MIN") << std::numeric_limits<int>::min();
}

// A severity the queue doesn't name is queued and handed on as it came, to a
// slot taking the enumeration and through the queued signal's copy.
void TestErrorReporting::unnamedSeveritiesPassUnchanged()
{
    QFETCH(int, severity);
    AsyncErrorQueue queue;
    Receiver receiver;
    QVERIFY(QObject::connect(&queue, SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)),
        &receiver, SLOT(onDisplayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*))));
    QSignalSpy spy(&queue, SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)));

    queue.reportErrorAsync(static_cast<AsyncErrorQueue::ErrorSeverity>(severity), "text", "details", nullptr);
    QCOMPARE(queue.count(), 1);
    drain(&queue);
    QCOMPARE(receiver.received.size(), 1);
    QCOMPARE(int(receiver.received.at(0).severity), severity);
    QCOMPARE(receiver.received.at(0).text, QStringLiteral("text"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(int(spy.at(0).at(0).value<AsyncErrorQueue::ErrorSeverity>()), severity);
}

void TestErrorReporting::reportsInterleavedWithTheEventLoop()
{
    AsyncErrorQueue queue;
    Receiver receiver;
    QVERIFY(connect(&queue, SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)), &receiver,
        SLOT(onDisplayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*))));

    queue.reportErrorAsync(AsyncErrorQueue::Error, "A", QString(), nullptr);
    queue.reportErrorAsync(AsyncErrorQueue::Error, "B", QString(), nullptr);
    // One posted event handles exactly one entry, the newest.
    QMetaObject::invokeMethod(&queue, "asyncSignaler", Qt::DirectConnection);
    QCOMPARE(receiver.received.count(), 1);
    QCOMPARE(receiver.received.at(0).text, QString("B"));
    queue.reportErrorAsync(AsyncErrorQueue::Error, "C", QString(), nullptr);
    drain(&queue);
    QCOMPARE(receiver.received.count(), 3);
    QCOMPARE(receiver.received.at(1).text, QString("C"));
    QCOMPARE(receiver.received.at(2).text, QString("A"));
}

void TestErrorReporting::nothingIsEmittedInsideReportErrorAsync()
{
    AsyncErrorQueue queue;
    QSignalSpy spy(&queue, SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)));
    queue.reportErrorAsync(AsyncErrorQueue::Critical, "x", QString(), nullptr);
    QCOMPARE(spy.count(), 0);
    QVERIFY(spy.wait(1000));
    QCOMPARE(spy.count(), 1);
}

void TestErrorReporting::clearAfterReportGivesNoSignal()
{
    AsyncErrorQueue queue;
    QSignalSpy spy(&queue, SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)));
    queue.reportErrorAsync(AsyncErrorQueue::Critical, "dropped", QString(), nullptr);
    queue.reportErrorAsync(AsyncErrorQueue::Warning, "dropped too", QString(), nullptr);
    queue.clear();
    QCOMPARE(queue.count(), 0);
    // The two posted events still run and find nothing.
    QCoreApplication::processEvents();
    QTest::qWait(20);
    QCOMPARE(spy.count(), 0);

    // The queue works as before afterwards.
    queue.reportErrorAsync(AsyncErrorQueue::Error, "after", QString(), nullptr);
    QVERIFY(spy.wait(1000));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(1).toString(), QString("after"));
}

void TestErrorReporting::countFollowsTheQueue()
{
    AsyncErrorQueue queue;
    QCOMPARE(queue.count(), 0);
    queue.reportErrorAsync(AsyncErrorQueue::Error, "1", QString(), nullptr);
    queue.reportErrorAsync(AsyncErrorQueue::Error, "2", QString(), nullptr);
    QCOMPARE(queue.count(), 2);
    QMetaObject::invokeMethod(&queue, "asyncSignaler", Qt::DirectConnection);
    QCOMPARE(queue.count(), 1);
    drain(&queue);
    QCOMPARE(queue.count(), 0);
}

void TestErrorReporting::slotMayReportAgain()
{
    AsyncErrorQueue queue;
    QStringList seen;
    connect(&queue, &AsyncErrorQueue::displayError, &queue,
        [&](AsyncErrorQueue::ErrorSeverity, QString text, QString, QWidget*) {
            seen << text;
            if (text == QLatin1String("original"))
                queue.reportErrorAsync(AsyncErrorQueue::Error, "follow-up", QString(), nullptr);
        });
    queue.reportErrorAsync(AsyncErrorQueue::Error, "original", QString(), nullptr);
    QTRY_COMPARE(seen.count(), 2);
    QCOMPARE(seen, QStringList({ "original", "follow-up" }));
}

void TestErrorReporting::displayErrorIsEmittedOnTheQueueThread()
{
    AsyncErrorQueue queue;
    Receiver receiver;
    QVERIFY(connect(&queue, SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)), &receiver,
        SLOT(onDisplayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)), Qt::DirectConnection));
    std::thread worker([&queue] { queue.reportErrorAsync(AsyncErrorQueue::Warning, "from worker", "w", nullptr); });
    worker.join();
    QTRY_COMPARE(receiver.received.count(), 1);
    QCOMPARE(receiver.threads.at(0), QThread::currentThread());
    QCOMPARE(receiver.received.at(0).text, QString("from worker"));
}

void TestErrorReporting::globalQueueIsOneObject()
{
    AsyncErrorQueue* queue = GetTheGlobalAsyncErrorQueue();
    QVERIFY(queue);
    QCOMPARE(GetTheGlobalAsyncErrorQueue(), queue);
    QCOMPARE(queue->parent(), nullptr);
    QCOMPARE(queue->thread(), QThread::currentThread());
}

void TestErrorReporting::showWarningMessageLogsAndQueues()
{
    QWidget parentWidget;
    QTest::ignoreMessage(QtWarningMsg, "Warning: setData: Title : Something went wrong");
    showWarningMessage("Title", "setData", "Something went wrong", "more", &parentWidget);
    drain(GetTheGlobalAsyncErrorQueue());
    QCOMPARE(m_globalReceiver.received.count(), 1);
    const Received& entry = m_globalReceiver.received.at(0);
    QCOMPARE(entry.severity, AsyncErrorQueue::Warning);
    QCOMPARE(entry.text, QString("Something went wrong"));
    QCOMPARE(entry.details, QString("more"));
    // The message functions keep the parent, unlike the exception functions.
    QCOMPARE(entry.parent, &parentWidget);
}

void TestErrorReporting::showWarningMessageWithoutDetails()
{
    QTest::ignoreMessage(QtWarningMsg, "Warning: ctx: T : text");
    showWarningMessage("T", "ctx", "text", nullptr);
    drain(GetTheGlobalAsyncErrorQueue());
    QCOMPARE(m_globalReceiver.received.count(), 1);
    QCOMPARE(m_globalReceiver.received.at(0).details, QString());
    QCOMPARE(m_globalReceiver.received.at(0).severity, AsyncErrorQueue::Warning);
}

void TestErrorReporting::showCriticalMessageLogsAndQueues()
{
    QWidget parentWidget;
    QTest::ignoreMessage(QtCriticalMsg, "Critical message: addParameterCollection : Title : Text : Details");
    showCriticalMessage("Title", "addParameterCollection", "Text", "Details", &parentWidget);
    QTest::ignoreMessage(QtCriticalMsg, "Critical message: ctx : T2 : Text2 : ");
    showCriticalMessage("T2", "ctx", "Text2", nullptr);
    drain(GetTheGlobalAsyncErrorQueue());
    QCOMPARE(m_globalReceiver.received.count(), 2);
    QCOMPARE(m_globalReceiver.received.at(0).text, QString("Text2"));
    QCOMPARE(m_globalReceiver.received.at(0).details, QString());
    QCOMPARE(m_globalReceiver.received.at(1).severity, AsyncErrorQueue::Critical);
    QCOMPARE(m_globalReceiver.received.at(1).details, QString("Details"));
    QCOMPARE(m_globalReceiver.received.at(1).parent, &parentWidget);
}

void TestErrorReporting::showErrorMessageLogsNothing()
{
    QWidget parentWidget;
    {
        MessageCapture capture;
        showErrorMessage("An error", "its details", &parentWidget);
        showErrorMessage("Another error", nullptr);
        QVERIFY2(MessageCapture::messages().isEmpty(), "showErrorMessage must not log");
    }
    drain(GetTheGlobalAsyncErrorQueue());
    QCOMPARE(m_globalReceiver.received.count(), 2);
    QCOMPARE(m_globalReceiver.received.at(0).text, QString("Another error"));
    QCOMPARE(m_globalReceiver.received.at(0).details, QString());
    QCOMPARE(m_globalReceiver.received.at(0).severity, AsyncErrorQueue::Error);
    QCOMPARE(m_globalReceiver.received.at(1).text, QString("An error"));
    QCOMPARE(m_globalReceiver.received.at(1).details, QString("its details"));
    QCOMPARE(m_globalReceiver.received.at(1).parent, &parentWidget);
}

void TestErrorReporting::showExceptionIgnoresParent_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::newRow("null parent") << false;
    QTest::newRow("a widget as parent") << true;
}

void TestErrorReporting::showExceptionIgnoresParent()
{
    QFETCH(bool, withParent);
    QWidget parentWidget;
    const GenICam::InvalidArgumentException e("Value out of range", "somefile.cpp", 12);
    QString logged;
    {
        MessageCapture capture;
        showException("setData", e, withParent ? &parentWidget : nullptr);
        QCOMPARE(MessageCapture::messages().count(), 1);
        QCOMPARE(MessageCapture::messages().at(0).type, QtCriticalMsg);
        logged = MessageCapture::messages().at(0).text;
    }
    // The same line whatever the parent.
    QCOMPARE(logged, QString("Critical message: setData : Error : Value out of range : "));
    drain(GetTheGlobalAsyncErrorQueue());
    QCOMPARE(m_globalReceiver.received.count(), 1);
    const Received& entry = m_globalReceiver.received.at(0);
    QCOMPARE(entry.severity, AsyncErrorQueue::Critical);
    QCOMPARE(entry.text, QString("Value out of range"));
    QCOMPARE(entry.details, QString());
    QCOMPARE(entry.parent, nullptr);
}

void TestErrorReporting::showExceptionWithText()
{
    QWidget parentWidget;
    const std::runtime_error e("device removed");
    QTest::ignoreMessage(QtCriticalMsg,
        "Critical message: addParameterCollection : Error : Failed to get the node 'Root' from the "
        "node map : device removed");
    showException("addParameterCollection", e, "Failed to get the node 'Root' from the node map", &parentWidget);
    drain(GetTheGlobalAsyncErrorQueue());
    QCOMPARE(m_globalReceiver.received.count(), 1);
    const Received& entry = m_globalReceiver.received.at(0);
    QCOMPARE(entry.text, QString("Failed to get the node 'Root' from the node map"));
    QCOMPARE(entry.details, QString("device removed"));
    QCOMPARE(entry.parent, nullptr);
}

void TestErrorReporting::showUnexpectedException()
{
    QWidget parentWidget;
    QTest::ignoreMessage(QtCriticalMsg, "Critical message: setData : Unexpected exception occurred : Failed : ");
    ::showUnexpectedException("setData", "Failed", &parentWidget);
    drain(GetTheGlobalAsyncErrorQueue());
    QCOMPARE(m_globalReceiver.received.count(), 1);
    QCOMPARE(m_globalReceiver.received.at(0).severity, AsyncErrorQueue::Critical);
    QCOMPARE(m_globalReceiver.received.at(0).text, QString("Failed"));
    QCOMPARE(m_globalReceiver.received.at(0).parent, nullptr);
}

void TestErrorReporting::exceptionStreamOperator()
{
    QString out;
    {
        QDebug debug(&out);
        debug << std::runtime_error("boom");
    }
    // Three pieces, each followed by the stream's space. (A message handler
    // trims the last space; a string target keeps it.)
    QCOMPARE(out, QString("Exception occurred:\n boom \n "));

    // A GenICam exception is written the same way: it is a std::exception.
    QString genicam;
    {
        QDebug debug(&genicam);
        const GenICam::GenericException e("node not found", "file.cpp", 3);
        debug << static_cast<const std::exception&>(e);
    }
    QCOMPARE(genicam, QString("Exception occurred:\n node not found \n "));
}

void TestErrorReporting::exceptionStreamOperatorWithoutSpacing()
{
    QString out;
    {
        QDebug debug(&out);
        debug.nospace() << std::runtime_error("boom");
    }
    QCOMPARE(out, QString("Exception occurred:\nboom\n"));
}

void TestErrorReporting::loggingPatternSecondLine()
{
    QTest::ignoreMessage(QtWarningMsg, "onTimerPoll :  Exception occurred:\n poll failed \n");
    ExceptionLogging::logException("onTimerPoll", std::runtime_error("poll failed"));
    QTest::ignoreMessage(QtWarningMsg, "onTimerPoll: Unspecified exception occurred.");
    ExceptionLogging::logUnspecifiedException("onTimerPoll");
}

void TestErrorReporting::loggingGoesToTheDefaultCategory()
{
    MessageCapture capture;
    ExceptionLogging::logException("f", std::runtime_error("x"));
    ExceptionLogging::logUnspecifiedException("f");
    showWarningMessage("t", "c", "x", nullptr);
    showCriticalMessage("t", "c", "x", nullptr);
    const auto messages = MessageCapture::messages();
    QCOMPARE(messages.count(), 4);
    for (const auto& m : messages)
        QCOMPARE(m.category, QString("default"));
    QCOMPARE(messages.at(0).type, QtWarningMsg);
    QCOMPARE(messages.at(1).type, QtWarningMsg);
    QCOMPARE(messages.at(2).type, QtWarningMsg);
    QCOMPARE(messages.at(3).type, QtCriticalMsg);
}

void TestErrorReporting::manyThreadsLoseNothing()
{
    AsyncErrorQueue queue;
    Receiver receiver;
    QVERIFY(connect(&queue, SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)), &receiver,
        SLOT(onDisplayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*))));

    const int threadCount = 16;
    const int reportsPerThread = 500;
    std::atomic<int> ready { 0 };
    std::vector<std::thread> workers;
    for (int t = 0; t < threadCount; ++t) {
        workers.emplace_back([&queue, &ready, t] {
            ++ready;
            while (ready.load() < threadCount) { }
            for (int i = 0; i < reportsPerThread; ++i) {
                queue.reportErrorAsync(
                    AsyncErrorQueue::Error, QStringLiteral("%1/%2").arg(t).arg(i), QString(), nullptr);
                if (i % 97 == 0)
                    (void)queue.count();
            }
        });
    }
    // The GUI thread drains while the workers report. A lost report would
    // keep the count short for ever: the wait ends at a deadline, and the
    // workers are joined before the test can fail.
    QDeadlineTimer deadline(60000);
    while (receiver.received.count() < threadCount * reportsPerThread / 4 && !deadline.hasExpired())
        QCoreApplication::processEvents();
    for (auto& worker : workers)
        worker.join();
    QVERIFY2(!deadline.hasExpired(), qPrintable(QString::number(receiver.received.count())));
    drain(&queue);

    QCOMPARE(receiver.received.count(), threadCount * reportsPerThread);
    QSet<QString> texts;
    for (const Received& r : receiver.received)
        texts.insert(r.text);
    QCOMPARE(texts.count(), threadCount * reportsPerThread);
    for (QThread* thread : receiver.threads)
        QCOMPARE(thread, QThread::currentThread());
    QCOMPARE(queue.count(), 0);
}

void TestErrorReporting::manyThreadsThroughTheGlobalQueue()
{
    const int threadCount = 8;
    const int reportsPerThread = 200;
    std::vector<std::thread> workers;
    for (int t = 0; t < threadCount; ++t) {
        workers.emplace_back([t] {
            for (int i = 0; i < reportsPerThread; ++i)
                showErrorMessage(QStringLiteral("g%1/%2").arg(t).arg(i), nullptr);
        });
    }
    for (auto& worker : workers)
        worker.join();
    QCOMPARE(GetTheGlobalAsyncErrorQueue()->count(), threadCount * reportsPerThread);
    drain(GetTheGlobalAsyncErrorQueue());
    QCOMPARE(m_globalReceiver.received.count(), threadCount * reportsPerThread);
    QSet<QString> texts;
    for (const Received& r : m_globalReceiver.received)
        texts.insert(r.text);
    QCOMPARE(texts.count(), threadCount * reportsPerThread);
}

QTEST_MAIN(TestErrorReporting)
#include "tst_errorreporting.moc"
