// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/files/AdministratorActions.h"

#include "files/FileRights.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

#include <memory>
#include <stdexcept>
#include <thread>

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

using TestSupport::TestLog;

/*! createFolder(), as far as it goes without a question, and the object's part in COM. */
class tst_ElevatedFolder_win : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void createFolder_granted_folderComes_data();
    void createFolder_granted_folderComes();
    void createFolder_existingFolder_getsThePermissions();
    void createFolder_malformedPermissions_throwAfterTheCommand();
    void createFolder_quotationMark_isRefused();
    void object_takesPartInCom();
    void object_threadWithOtherModel_losesIt();

private:
    TestSupport::Sandbox m_sandbox;
    QString m_folder;
};

void tst_ElevatedFolder_win::init()
{
    const QString test = QString::fromLatin1(QTest::currentTestFunction());
    if (test.startsWith(u"createFolder") && !IsUserAnAdmin()) {
        QSKIP("The system would ask the user.");
    }
    m_folder = QDir::toNativeSeparators(m_sandbox.filePath(test));
    QVERIFY(QDir().mkpath(m_folder));
}

void tst_ElevatedFolder_win::createFolder_granted_folderComes_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << u"folder"_qs;
    QTest::newRow("blanks") << u"two  words"_qs;
    QTest::newRow("other than Latin") << u"gr\u00fc\u00df \u043f\u0443\u0442\u044c"_qs;
    QTest::newRow("minus in front") << u"-p"_qs;
    QTest::newRow("for a shell") << u"a & b ^ (c)"_qs;
    QTest::newRow("nested") << u"a\\b\\c"_qs;
}

void tst_ElevatedFolder_win::createFolder_granted_folderComes()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, name);

    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString path = m_folder + u'\\' + name;
    const bool isInTime = AdministratorActions().createFolder(path.toStdString(), "755");
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(path).isDir(), 60'000);
    if (isInTime) {
        QCOMPARE(log.records(), QStringList());
        return;
    }
    QCOMPARE(log.records().size(), 1); // the permissions came too early
    const QString start
        = u"ERROR AdministratorActions::setPathPermissions: Cannot set permissions to folder " + path + u" error: ";
    QVERIFY2(log.records().constFirst().startsWith(start), qPrintable(log.records().constFirst()));
}

void tst_ElevatedFolder_win::createFolder_existingFolder_getsThePermissions()
{
    const AdministratorActions actions;
    const std::string path = m_folder.toStdString();
    QVERIFY(actions.createFolder(path, "555"));
    QCOMPARE(TestSupport::isReadOnly(m_folder), TestSupport::keepsReadOnlyFolders(m_folder));
    QVERIFY(actions.createFolder(path, "755"));
    QVERIFY(!TestSupport::isReadOnly(m_folder));
}

void tst_ElevatedFolder_win::createFolder_malformedPermissions_throwAfterTheCommand()
{
    const QString path = m_folder + u"\\folder";
    const AdministratorActions actions;
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, (void)actions.createFolder(path.toStdString(), "abc"));
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(path).isDir(), 60'000);
}

void tst_ElevatedFolder_win::createFolder_quotationMark_isRefused()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString path = m_folder + u"\\a\" & md \"" + m_folder + u"\\b";
    QVERIFY(!AdministratorActions().createFolder(path.toStdString(), "755"));
    QCOMPARE(log.records(),
             QStringList{u"ERROR AdministratorActions::createFolder: Cannot run executable with elevated privileges: "
                         u"/C md \""
                         + path + u'"'});
    QVERIFY(QDir(m_folder).isEmpty());
}

void tst_ElevatedFolder_win::object_takesPartInCom()
{
    HRESULT within = E_FAIL;
    HRESULT otherModelWithin = E_FAIL;
    HRESULT afterFirst = E_FAIL;
    HRESULT afterBoth = E_FAIL;
    std::thread thread([&] {
        auto first = std::make_unique<AdministratorActions>();
        {
            const AdministratorActions second;
            within = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
            CoUninitialize();
        }
        otherModelWithin = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        first.reset();
        afterFirst = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        CoUninitialize();
        afterBoth = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        CoUninitialize();
    });
    thread.join();
    QCOMPARE(within, S_FALSE); // it was there already
    QCOMPARE(otherModelWithin, RPC_E_CHANGED_MODE);
    QCOMPARE(afterFirst, S_OK); // and now it is gone
    QCOMPARE(afterBoth, S_OK);
}

void tst_ElevatedFolder_win::object_threadWithOtherModel_losesIt()
{
    HRESULT before = E_FAIL;
    HRESULT after = E_FAIL;
    bool isWritten = false;
    std::thread thread([&] {
        before = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        {
            const AdministratorActions actions;
            isWritten = actions.writeFile(QString(m_folder + u"\\file").toStdString(), "644", "data");
        }
        after = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); // the destructor does not ask what was before
        CoUninitialize();
    });
    thread.join();
    QCOMPARE(before, S_OK);
    QVERIFY(isWritten);
    QCOMPARE(after, S_OK);
}

QTEST_GUILESS_MAIN(tst_ElevatedFolder_win)

#include "tst_ElevatedFolder_win.moc"
