// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/ColourService_unix.h"
#include "files/FileTraps_unix.h"
#include "files/FileTrees.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/files/FileUtils.h"
#include "utilsDll/frame/Application.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QStandardPaths>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusReply>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <memory>
#include <optional>

using namespace ZYX_zglv6;
using TestSupport::ColourService;

namespace {

const QString devicePath = u"/org/freedesktop/ColorManager/devices/d1"_qs;
const QString profilePath = u"/org/freedesktop/ColorManager/profiles/p1"_qs;
const QString colourService = u"org.freedesktop.ColorManager"_qs;

QVariant objectPath(const QString &path)
{
    return QVariant::fromValue(QDBusObjectPath(path));
}

QVariant objectPaths(const QStringList &paths)
{
    QList<QDBusObjectPath> list;
    for (const QString &path : paths) {
        list.append(QDBusObjectPath(path));
    }
    return QVariant::fromValue(list);
}

int argumentCount = 1;
char programName[] = "host";
char *hostArguments[] = {programName, nullptr};

class HostApplication : public QApplication, public IApplication
{
public:
    QWidget *window = nullptr;

    HostApplication()
        : QApplication(argumentCount, hostArguments)
    {
    }

    QWidget *mainWindow() override
    {
        return window;
    }
};

/*! The offscreen platform gets the screens "left" and "right". */
bool makeTwoScreens(const QString &file)
{
    qputenv("QT_QPA_PLATFORM", QFile::encodeName(u"offscreen:configfile="_qs + file));
    return FileTrees::write(file, R"({"screens": [
        {"name": "left", "x": 0, "y": 0, "width": 800, "height": 600, "logicalDpi": 96, "dpr": 1},
        {"name": "right", "x": 800, "y": 0, "width": 800, "height": 600, "logicalDpi": 96, "dpr": 1}]})");
}

} // namespace

class tst_MonitorProfile_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void withoutService_isEmpty();
    void withoutHost_isLoggedAndAskedOfThePrimaryScreen();
    void answers_data();
    void answers();
    void questions_goFromScreenToFile();
    void serviceThatIsSilent_isNotWaitedForLong_data();
    void serviceThatIsSilent_isNotWaitedForLong();
    void window_tellsItsScreen_data();
    void window_tellsItsScreen();
    void realService_tellsTheProfileOfTheScreen();

private:
    TestSupport::Sandbox m_sandbox;
    std::unique_ptr<TestSupport::PrivateBus> m_bus;
};

void tst_MonitorProfile_unix::init()
{
    if (TestSupport::isFreshProcess()) {
        return; // has that of the process which started it
    }
    m_bus = std::make_unique<TestSupport::PrivateBus>(); // a new one for each function, with nothing of the one before
    if (!m_bus->isRunning()) {
        QSKIP("dbus-daemon is missing");
    }
}

void tst_MonitorProfile_unix::withoutService_isEmpty()
{
    RUN_IN_FRESH_PROCESS();
    const HostApplication application;
    QVERIFY(QDBusConnection::systemBus().isConnected());
    QCOMPARE(GetIccProfileFilePathFromSystem(), std::string());
}

void tst_MonitorProfile_unix::withoutHost_isLoggedAndAskedOfThePrimaryScreen()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString line = u"ERROR `anonymous-namespace'::getMainWindowHWnd: Current qApp is not a pointer to "
                         "IApplication, return HWND_DESKTOP"_qs;
    QCOMPARE(GetIccProfileFilePathFromSystem(), std::string()); // without a screen, too
    QCOMPARE(log.records(), QStringList{line});

    const QApplication application(argumentCount, hostArguments);
    ColourService service;
    service.screenName = QGuiApplication::primaryScreen()->name();
    service.device = objectPath(devicePath);
    service.profiles = objectPaths({profilePath});
    service.fileName = u"/p.icc"_qs;
    QVERIFY(service.start());
    QCOMPARE(GetIccProfileFilePathFromSystem(), std::string("/p.icc"));
    QCOMPARE(log.records(), (QStringList{line, line}));
}

void tst_MonitorProfile_unix::answers_data()
{
    QTest::addColumn<QVariant>("device");
    QTest::addColumn<QVariant>("profiles");
    QTest::addColumn<QVariant>("fileName");
    QTest::addColumn<bool>("hasBareValues");
    QTest::addColumn<QByteArray>("result");

    const QVariant device = objectPath(devicePath);
    const QVariant profiles = objectPaths({profilePath});
    const QVariant file = u"/profiles/Monitor.icc"_qs;
    const auto add = [](const char *row, const QVariant &ofDevice, const QVariant &ofProfiles, const QVariant &ofFile,
                        const QByteArray &result = {}, bool hasBareValues = false) {
        QTest::newRow(row) << ofDevice << ofProfiles << ofFile << hasBareValues << result;
    };
    add("all there", device, profiles, file, "/profiles/Monitor.icc");
    add("UTF-8", device, profiles, u"/Farb \u00fc/\u5199/\U0001F39E.icc"_qs,
        "/Farb \xc3\xbc/\xe5\x86\x99/\xf0\x9f\x8e\x9e.icc");
    add("the first of several", device, objectPaths({profilePath, u"/other"_qs}), file, "/profiles/Monitor.icc");
    add("no device", {}, profiles, file);
    add("device as text", devicePath, profiles, file);
    add("device as number", 5, profiles, file);
    add("profiles refused", device, {}, file);
    add("no profile", device, objectPaths({}), file);
    add("profiles as text", device, profilePath, file);
    add("profiles as texts", device, QStringList{profilePath}, file);
    add("profiles as number", device, 5, file);
    add("profiles as numbers", device, QVariant::fromValue(QList<int>{1, 2}), file);
    add("one profile, no list", device, objectPath(profilePath), file);
    add("file refused", device, profiles, {});
    add("file without a name", device, profiles, u""_qs);
    add("file as path of an object", device, profiles, objectPath(profilePath));
    add("file as number", device, profiles, 5);
    add("file as texts", device, profiles, QStringList{u"/a.icc"_qs, u"/b.icc"_qs});
    add("values that are no variants", device, profiles, file, {}, true);
}

void tst_MonitorProfile_unix::answers()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QVariant, device);
    QFETCH(const QVariant, profiles);
    QFETCH(const QVariant, fileName);
    QFETCH(const bool, hasBareValues);
    QFETCH(const QByteArray, result);
    const HostApplication application;
    ColourService service;
    service.screenName = QGuiApplication::primaryScreen()->name();
    service.device = device;
    service.profiles = profiles;
    service.fileName = fileName;
    service.hasBareValues = hasBareValues;
    QVERIFY(service.start());
    QCOMPARE(QByteArray::fromStdString(GetIccProfileFilePathFromSystem()), result);
}

void tst_MonitorProfile_unix::questions_goFromScreenToFile()
{
    RUN_IN_FRESH_PROCESS();
    const HostApplication application;
    ColourService service;
    service.screenName = QGuiApplication::primaryScreen()->name();
    service.device = objectPath(devicePath);
    service.profiles = objectPaths({profilePath});
    service.fileName = u"/p.icc"_qs;
    QVERIFY(service.start());
    QCOMPARE(GetIccProfileFilePathFromSystem(), std::string("/p.icc"));
    const QString get = u" org.freedesktop.DBus.Properties Get "_qs;
    QCOMPARE(service.questions(),
             (QStringList{
                 u"/org/freedesktop/ColorManager org.freedesktop.ColorManager FindDeviceByProperty XRANDR_name "_qs
                     + service.screenName,
                 devicePath + get + u"org.freedesktop.ColorManager.Device Profiles",
                 profilePath + get + u"org.freedesktop.ColorManager.Profile Filename",
             }));
}

void tst_MonitorProfile_unix::serviceThatIsSilent_isNotWaitedForLong_data()
{
    QTest::addColumn<QString>("at");
    for (const char *at : {"device", "profiles", "fileName"}) {
        QTest::newRow(at) << QString::fromUtf8(at);
    }
}

void tst_MonitorProfile_unix::serviceThatIsSilent_isNotWaitedForLong()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, at);
    const HostApplication application;
    ColourService service;
    service.screenName = QGuiApplication::primaryScreen()->name();
    service.device = objectPath(devicePath);
    service.profiles = objectPaths({profilePath});
    service.fileName = u"/p.icc"_qs;
    service.silentAt = at;
    QVERIFY(service.start());
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(GetIccProfileFilePathFromSystem(), std::string());
    QVERIFY(timer.elapsed() < 20'000); // D-Bus itself waits 25 s
}

void tst_MonitorProfile_unix::window_tellsItsScreen_data()
{
    QTest::addColumn<int>("windowX"); // -1: none
    QTest::addColumn<QString>("screen");
    QTest::newRow("window on the first") << 100 << u"left"_qs;
    QTest::newRow("window on the second") << 900 << u"right"_qs;
    QTest::newRow("no window, so the primary one") << -1 << u"left"_qs;
}

void tst_MonitorProfile_unix::window_tellsItsScreen()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const int, windowX);
    QFETCH(const QString, screen);
    QVERIFY(makeTwoScreens(m_sandbox.filePath(u"screens.json"_qs)));
    HostApplication application;
    QCOMPARE(QGuiApplication::screens().size(), 2);
    QWidget other; // an earlier window that is not the main one
    other.setGeometry(100, 100, 50, 50);
    other.show();
    QWidget window;
    window.setGeometry(windowX, 100, 50, 50);
    if (windowX >= 0) {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        application.window = &window;
    }
    ColourService service;
    service.screenName = screen;
    service.device = objectPath(devicePath);
    service.profiles = objectPaths({profilePath});
    service.fileName = u"/p.icc"_qs;
    QVERIFY(service.start());
    QCOMPARE(GetIccProfileFilePathFromSystem(), std::string("/p.icc"));
}

void tst_MonitorProfile_unix::realService_tellsTheProfileOfTheScreen()
{
    RUN_IN_FRESH_PROCESS();
    const QString program = QStandardPaths::findExecutable(u"colord"_qs, {u"/usr/libexec"_qs, u"/usr/lib/colord"_qs});
    const QString profileFile = u"/usr/share/color/icc/colord/sRGB.icc"_qs;
    if (program.isEmpty() || !QFileInfo::exists(profileFile)) {
        QSKIP("colord is missing");
    }
    if (!FileTraps::mountSmallDisk(u"/var/lib/colord"_qs, 4'194'304)) { // where it keeps its records
        QSKIP("This user may not mount a file system");
    }
    const HostApplication application;
    QDBusConnection bus = QDBusConnection::systemBus();
    QProcess process;
    process.start(program, QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(bus.interface()->isServiceRegistered(colourService), 30'000);
    const auto ask
        = [&bus](const QString &object, const QString &interface, const QString &method, const QVariantList &values) {
              QDBusMessage question = QDBusMessage::createMethodCall(colourService, object, interface, method);
              question.setArguments(values);
              return bus.call(question);
          };
    const QString manager = u"/org/freedesktop/ColorManager"_qs;
    using Properties = QMap<QString, QString>;
    qDBusRegisterMetaType<Properties>();
    const Properties ofDevice{{u"XRANDR_name"_qs, QGuiApplication::primaryScreen()->name()},
                              {u"Kind"_qs, u"display"_qs}};
    const QDBusReply<QDBusObjectPath> device
        = ask(manager, colourService, u"CreateDevice"_qs, {u"screen"_qs, u"temp"_qs, QVariant::fromValue(ofDevice)});
    QVERIFY2(device.isValid(), qPrintable(device.error().message()));
    QCOMPARE(GetIccProfileFilePathFromSystem(), std::string()); // it has no profile yet

    const Properties ofProfile{{u"Filename"_qs, profileFile}};
    const QDBusReply<QDBusObjectPath> profile
        = ask(manager, colourService, u"CreateProfile"_qs, {u"profile"_qs, u"temp"_qs, QVariant::fromValue(ofProfile)});
    QVERIFY2(profile.isValid(), qPrintable(profile.error().message()));
    const QDBusReply<void> added = ask(device.value().path(), u"org.freedesktop.ColorManager.Device"_qs,
                                       u"AddProfile"_qs, {u"hard"_qs, QVariant::fromValue(profile.value())});
    QVERIFY2(added.isValid(), qPrintable(added.error().message()));
    QCOMPARE(QString::fromStdString(GetIccProfileFilePathFromSystem()), profileFile);
    process.terminate();
    QVERIFY(process.waitForFinished());
}

int main(int argc, char *argv[])
{
    // In a process of its own, each function makes the application that it needs.
    std::optional<QCoreApplication> starter;
    if (!TestSupport::isFreshProcess()) {
        starter.emplace(argc, argv);
    }
    tst_MonitorProfile_unix test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_MonitorProfile_unix.moc"
