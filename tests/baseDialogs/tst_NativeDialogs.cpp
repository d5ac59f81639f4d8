// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/NativeDialogs.h"

#include "baseDialogs/OpenDialog.h"
#include "support/AssertionReports.h"
#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>

#include <type_traits>

using namespace ZYX_zglv6;
using TestSupport::AssertionReports;
using TestSupport::OpenDialog;

namespace {

const QFlags<QFileDialog::Option> plainOptions = QFileDialog::DontUseNativeDialog | QFileDialog::DontResolveSymlinks;
const QString tiffAndJpeg = QStringLiteral("TIFF (*.tiff);;JPEG (*.jpeg *.jpg)");
const QString jpeg = QStringLiteral("JPEG (*.jpeg *.jpg)");

using Name = QString CNativeDialogs::*;
using Names = QStringList CNativeDialogs::*;

Name openFileName();
Name saveFileName();
Name existingDirectory();
Names openFileNames();

/*!
    The stored answers are for a driver outside of the library; no operation gives them back. An explicit instantiation
    may name what is private.
*/
template <Name open, Name save, Name directory, Names names>
struct StoredAnswers
{
    friend Name openFileName()
    {
        return open;
    }

    friend Name saveFileName()
    {
        return save;
    }

    friend Name existingDirectory()
    {
        return directory;
    }

    friend Names openFileNames()
    {
        return names;
    }
};

template struct StoredAnswers<&CNativeDialogs::m_openFileName, &CNativeDialogs::m_saveFileName,
                              &CNativeDialogs::m_existingDirectory, &CNativeDialogs::m_openFileNames>;

CNativeDialogs &dialogs()
{
    return Singleton<CNativeDialogs>::instance();
}

QString proposedIn(const QFileDialog &dialog)
{
    return dialog.findChild<QLineEdit *>(u"fileNameEdit"_qs)->text();
}

void press(QFileDialog &dialog, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
}

/*! Types \a names and opens them, when the dialog has read the folder that has \a lastName in it. */
void openByName(QFileDialog &dialog, const QString &names, const QString &lastName)
{
    const auto *view = dialog.findChild<QListView *>(u"listView"_qs);
    const auto isRead = [view, &lastName] {
        const QModelIndex folder = view->rootIndex();
        return !view->model()->match(view->model()->index(0, 0, folder), Qt::DisplayRole, lastName, 1).isEmpty();
    };
    QVERIFY(QTest::qWaitFor(isRead));
    auto *edit = dialog.findChild<QLineEdit *>(u"fileNameEdit"_qs);
    edit->clear();
    QTest::keyClicks(edit, names);
    press(dialog, QDialogButtonBox::Open);
}

bool writeFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly);
}

} // namespace

class tst_NativeDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void instance_isOneAndTheOnly();
    void getSaveFileName_proposesTheMendedName_data();
    void getSaveFileName_proposesTheMendedName();
    void getSaveFileName_forwardsAllArguments();
    void getSaveFileName_cancelledWithEmptyFilter_reportsAndAnswersEmpty();
    void getSaveFileName_withNoSelectedFilter_reportsNothing();
    void getSaveFileName_withoutFilters_reportsAndAnswersTheName();
    void getOpenFileName_forwardsAllArguments();
    void getOpenFileNames_forwardsAllArguments();
    void getExistingDirectory_forwardsAllArguments();
    void setters_storeTheAnswers();
    void setOpenFileNames_replacesThoseBefore();

private:
    TestSupport::Sandbox m_sandbox;
    QString m_photos;
};

void tst_NativeDialogs::initTestCase()
{
    m_photos = m_sandbox.filePath(u"photos"_qs);
    QVERIFY(QDir().mkpath(m_photos + u"/roll"_qs));
    for (const char *name : {"a.tiff", "b.jpg", "c.jpg"}) {
        QVERIFY(writeFile(m_photos + u'/' + QString::fromLatin1(name)));
    }
}

void tst_NativeDialogs::instance_isOneAndTheOnly()
{
    static_assert(!std::is_default_constructible_v<CNativeDialogs>);
    static_assert(std::is_base_of_v<QObject, CNativeDialogs>);
    QCOMPARE(&dialogs(), &Singleton<CNativeDialogs>::instance());
    QCOMPARE(dialogs().metaObject()->className(), "ZYX_zglv6::CNativeDialogs");
}

void tst_NativeDialogs::getSaveFileName_proposesTheMendedName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("proposed");

    QTest::newRow("raw") << u"x.tar.NEF"_qs << tiffAndJpeg << u"x.tar.tiff"_qs;
    QTest::newRow("standard") << u"x.jpg"_qs << tiffAndJpeg << u"x.jpg"_qs;
    QTest::newRow("no suffix") << u"x"_qs << tiffAndJpeg << u"x.tiff"_qs;
    QTest::newRow("a digit first") << u"x.nef"_qs << u"Raw (*.3fr)"_qs << u"x"_qs;
}

void tst_NativeDialogs::getSaveFileName_proposesTheMendedName()
{
    QFETCH(const QString, name);
    QFETCH(const QString, filter);
    QFETCH(const QString, proposed);

    QString shown;
    const OpenDialog open([&shown](QFileDialog &dialog) {
        shown = proposedIn(dialog);
        press(dialog, QDialogButtonBox::Cancel);
    });
    const QString dir = m_photos + u'/' + name;
    QCOMPARE(dialogs().getSaveFileName(nullptr, QString(), dir, filter, nullptr, plainOptions), QString());
    QVERIFY(open.wasEnded());
    QCOMPARE(shown, proposed);
}

void tst_NativeDialogs::getSaveFileName_forwardsAllArguments()
{
    QWidget owner;
    QString selectedFilter = jpeg;
    const OpenDialog open([&](QFileDialog &dialog) {
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(dialog.parentWidget(), &owner);
        QCOMPARE(dialog.windowTitle(), u"Save the print"_qs);
        QCOMPARE(dialog.directory().absolutePath(), m_photos);
        QCOMPARE(dialog.nameFilters(), tiffAndJpeg.split(u";;"_qs));
        QCOMPARE(dialog.selectedNameFilter(), jpeg);
        QCOMPARE(dialog.options(), plainOptions);
        dialog.selectNameFilter(u"TIFF (*.tiff)"_qs);
        press(dialog, QDialogButtonBox::Save);
    });
    const AssertionReports reports;
    QCOMPARE(dialogs().getSaveFileName(&owner, u"Save the print"_qs, m_photos + u"/new.dng"_qs, tiffAndJpeg,
                                       &selectedFilter, plainOptions),
             QString(m_photos + u"/new.tiff"_qs));
    QVERIFY(open.wasEnded());
    QCOMPARE(selectedFilter, u"TIFF (*.tiff)"_qs);
    QCOMPARE(reports.texts(), QStringList());
}

void tst_NativeDialogs::getSaveFileName_cancelledWithEmptyFilter_reportsAndAnswersEmpty()
{
    QString selectedFilter;
    const OpenDialog open([](QFileDialog &dialog) { press(dialog, QDialogButtonBox::Cancel); });
    const AssertionReports reports;
    QCOMPARE(dialogs().getSaveFileName(nullptr, QString(), m_photos, tiffAndJpeg, &selectedFilter, plainOptions),
             QString());
    QVERIFY(open.wasEnded());
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY(reports.texts().first().contains(u"baseDialogs/NativeDialogs.cpp line "));
}

void tst_NativeDialogs::getSaveFileName_withNoSelectedFilter_reportsNothing()
{
    const OpenDialog open([](QFileDialog &dialog) { press(dialog, QDialogButtonBox::Cancel); });
    const AssertionReports reports;
    dialogs().getSaveFileName(nullptr, QString(), m_photos, tiffAndJpeg, nullptr, plainOptions);
    QVERIFY(open.wasEnded());
    QCOMPARE(reports.texts(), QStringList());
}

void tst_NativeDialogs::getSaveFileName_withoutFilters_reportsAndAnswersTheName()
{
    QString selectedFilter;
    const OpenDialog open([](QFileDialog &dialog) {
        dialog.setNameFilters({}); // so that none is selected at the end
        press(dialog, QDialogButtonBox::Save);
    });
    const AssertionReports reports;
    QCOMPARE(dialogs().getSaveFileName(nullptr, QString(), m_photos + u"/new.jpg"_qs, tiffAndJpeg, &selectedFilter,
                                       plainOptions),
             QString(m_photos + u"/new.jpg"_qs));
    QVERIFY(open.wasEnded());
    QCOMPARE(selectedFilter, QString());
    QCOMPARE(reports.texts().size(), 1);
}

void tst_NativeDialogs::getOpenFileName_forwardsAllArguments()
{
    QWidget owner;
    QString selectedFilter = jpeg;
    const OpenDialog open([&](QFileDialog &dialog) {
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(dialog.parentWidget(), &owner);
        QCOMPARE(dialog.windowTitle(), u"Open a photo"_qs);
        QCOMPARE(dialog.directory().absolutePath(), m_photos);
        QCOMPARE(dialog.nameFilters(), tiffAndJpeg.split(u";;"_qs));
        QCOMPARE(dialog.selectedNameFilter(), jpeg);
        QCOMPARE(dialog.options(), plainOptions);
        dialog.selectNameFilter(u"TIFF (*.tiff)"_qs);
        openByName(dialog, u"a.tiff"_qs, u"a.tiff"_qs);
    });
    QCOMPARE(
        dialogs().getOpenFileName(&owner, u"Open a photo"_qs, m_photos, tiffAndJpeg, &selectedFilter, plainOptions),
        QString(m_photos + u"/a.tiff"_qs));
    QVERIFY(open.wasEnded());
    QCOMPARE(selectedFilter, u"TIFF (*.tiff)"_qs);
}

void tst_NativeDialogs::getOpenFileNames_forwardsAllArguments()
{
    QWidget owner;
    QString selectedFilter = u"TIFF (*.tiff)"_qs;
    const OpenDialog open([&](QFileDialog &dialog) {
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFiles);
        QCOMPARE(dialog.parentWidget(), &owner);
        QCOMPARE(dialog.windowTitle(), u"Open photos"_qs);
        QCOMPARE(dialog.directory().absolutePath(), m_photos);
        QCOMPARE(dialog.nameFilters(), tiffAndJpeg.split(u";;"_qs));
        QCOMPARE(dialog.selectedNameFilter(), u"TIFF (*.tiff)"_qs);
        QCOMPARE(dialog.options(), plainOptions);
        dialog.selectNameFilter(jpeg);
        openByName(dialog, u"\"b.jpg\" \"c.jpg\""_qs, u"c.jpg"_qs);
    });
    QCOMPARE(
        dialogs().getOpenFileNames(&owner, u"Open photos"_qs, m_photos, tiffAndJpeg, &selectedFilter, plainOptions),
        QStringList({m_photos + u"/b.jpg"_qs, m_photos + u"/c.jpg"_qs}));
    QVERIFY(open.wasEnded());
    QCOMPARE(selectedFilter, jpeg);
}

void tst_NativeDialogs::getExistingDirectory_forwardsAllArguments()
{
    QWidget owner;
    const auto options = plainOptions | QFileDialog::ShowDirsOnly;
    const OpenDialog open([&](QFileDialog &dialog) {
        QCOMPARE(dialog.fileMode(), QFileDialog::Directory);
        QCOMPARE(dialog.parentWidget(), &owner);
        QCOMPARE(dialog.windowTitle(), u"Choose a folder"_qs);
        QCOMPARE(dialog.directory().absolutePath(), m_photos);
        QCOMPARE(dialog.options(), options);
        openByName(dialog, u"roll"_qs, u"roll"_qs);
    });
    QCOMPARE(dialogs().getExistingDirectory(&owner, u"Choose a folder"_qs, m_photos, options),
             QString(m_photos + u"/roll"_qs));
    QVERIFY(open.wasEnded());
}

void tst_NativeDialogs::setters_storeTheAnswers()
{
    for (const QString &name : {u"C:/a b/\u00fc.nef"_qs, QString()}) {
        QVERIFY(QMetaObject::invokeMethod(&dialogs(), "setOpenFileName", Q_ARG(QString, u"1"_qs + name)));
        QVERIFY(QMetaObject::invokeMethod(&dialogs(), "setSaveFileName", Q_ARG(QString, u"2"_qs + name)));
        QVERIFY(QMetaObject::invokeMethod(&dialogs(), "setExistingDirectory", Q_ARG(QString, u"3"_qs + name)));
        QCOMPARE(dialogs().*openFileName(), u"1"_qs + name);
        QCOMPARE(dialogs().*saveFileName(), u"2"_qs + name);
        QCOMPARE(dialogs().*existingDirectory(), u"3"_qs + name);
    }
}

void tst_NativeDialogs::setOpenFileNames_replacesThoseBefore()
{
    const QList<QVariant> first{u"a.nef"_qs, 7, QVariant()};
    QVERIFY(QMetaObject::invokeMethod(&dialogs(), "setOpenFileNames", Q_ARG(QList<QVariant>, first)));
    QCOMPARE(dialogs().*openFileNames(), QStringList({u"a.nef"_qs, u"7"_qs, QString()}));
    dialogs().setOpenFileNames({u"b.nef"_qs});
    QCOMPARE(dialogs().*openFileNames(), QStringList({u"b.nef"_qs}));
    dialogs().setOpenFileNames({});
    QCOMPARE(dialogs().*openFileNames(), QStringList());
}

QTEST_MAIN(tst_NativeDialogs)
#include "tst_NativeDialogs.moc"
