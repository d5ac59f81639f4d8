// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/NativeDialogs.h"

#include "baseDialogs/OpenDialog.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include <QtCore/QDir>
#include <QtTest/QTest>

using namespace ZYX_zglv6;
using TestSupport::buttonOf;
using TestSupport::OpenDialog;

namespace {

CNativeDialogs &dialogs()
{
    return Singleton<CNativeDialogs>::instance();
}

} // namespace

/*! How getFileBrowserDirectory() asks where the system has no such dialog. */
class tst_FileBrowser_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialog_isAsAskedFor_data();
    void dialog_isAsAskedFor();
    void options_changeNothing();
    void closing_answersEmpty();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_FileBrowser_unix::dialog_isAsAskedFor_data()
{
    QTest::addColumn<bool>("withRawFiles");
    QTest::addColumn<QString>("filter");
    QTest::newRow("standard") << false << u"Image Files (*.tiff *.tif *.jpeg *.jpg)"_qs;
    QTest::newRow("raw") << true
                         << u"Image Files (*.tiff *.tif *.jpeg *.jpg *.crw *.mrw *.arw *.raf *.pef *.orf *.ori *.rw2 "
                            u"*.rwl *.nrw *.srw *.cr2 *.cr3 *.nef *.dng *.zyx *.3fr)"_qs;
}

void tst_FileBrowser_unix::dialog_isAsAskedFor()
{
    QFETCH(const bool, withRawFiles);
    QFETCH(const QString, filter);

    QWidget owner;
    const QString folder = m_sandbox.filePath(u"photos \u00fc"_qs);
    QVERIFY(QDir().mkpath(folder));
    const OpenDialog open([&](QFileDialog &dialog) {
        QCOMPARE(dialog.parentWidget(), &owner);
        QCOMPARE(dialog.windowTitle(), u"Choose for the batch"_qs);
        QCOMPARE(dialog.nameFilters(), QStringList{filter});
        QCOMPARE(dialog.directory().absolutePath(), folder);
        QVERIFY(buttonOf(dialog));
        QTest::mouseClick(buttonOf(dialog), Qt::LeftButton);
    });
    QCOMPARE(dialogs().getFileBrowserDirectory(&owner, withRawFiles, u"Choose for the batch"_qs, folder, {}), folder);
    QVERIFY(open.wasEnded());
}

void tst_FileBrowser_unix::options_changeNothing()
{
    QWidget owner;
    const OpenDialog open([&](QFileDialog &dialog) {
        QCOMPARE(dialog.options(), QFileDialog::DontUseNativeDialog);
        dialog.reject();
    });
    dialogs().getFileBrowserDirectory(&owner, false, QString(), QString(),
                                      QFileDialog::ReadOnly | QFileDialog::ShowDirsOnly);
    QVERIFY(open.wasEnded());
}

void tst_FileBrowser_unix::closing_answersEmpty()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const TestSupport::AssertionReports reports;
    QWidget owner;
    const OpenDialog open([](QFileDialog &dialog) { dialog.close(); });
    QCOMPARE(dialogs().getFileBrowserDirectory(&owner, true, QString(), u"/none/at all"_qs, {}), QString());
    QVERIFY(open.wasEnded());
    QCOMPARE(reports.texts(), QStringList());
    QCOMPARE(log.records(), QStringList());
}

QTEST_MAIN(tst_FileBrowser_unix)
#include "tst_FileBrowser_unix.moc"
