// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/Sandbox.h"

#include "storageLocation/storageLocation.h"

#include <QtCore/QDir>
#include <QtCore/QScopeGuard>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include <windows.h>

using namespace ZYX_zglv6;

/*! A file that another program has open and shares with nobody. */
class tst_LockedDataFile_win : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lockedFile_isSeenOnlyByOpening_data();
    void lockedFile_isSeenOnlyByOpening();

private:
    TestSupport::Sandbox m_sandbox; // the box's sheets ask for the stored language
};

void tst_LockedDataFile_win::lockedFile_isSeenOnlyByOpening_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("warnings");

    QTest::newRow("by its attributes") << u"Frames.lua"_qs << 0;
    QTest::newRow("by opening") << u"Defects.lua"_qs << 1;
}

void tst_LockedDataFile_win::lockedFile_isSeenOnlyByOpening()
{
    QFETCH(const QString, name);
    QFETCH(const int, warnings);

    const QString folder = QCoreApplication::applicationDirPath() + u"/Resources";
    const QString path = QDir::toNativeSeparators(folder + u'/' + name);
    QVERIFY(QDir().mkpath(folder));
    const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t *>(path.utf16()), GENERIC_WRITE, 0, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    QVERIFY(file != INVALID_HANDLE_VALUE);
    const auto close = qScopeGuard([file, &folder] {
        CloseHandle(file);
        QDir().rmdir(folder);
    });

    int boxes = 0;
    QTimer reader;
    connect(&reader, &QTimer::timeout, this, [&boxes] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box && box->isVisible()) {
            ++boxes;
            box->reject();
        }
    });
    reader.start(10);
    name == u"Frames.lua" ? CStorageLocation::framePackPath(true) : CStorageLocation::defectsPackPath();
    QCOMPARE(boxes, warnings);
}

QTEST_MAIN(tst_LockedDataFile_win)
#include "tst_LockedDataFile_win.moc"
