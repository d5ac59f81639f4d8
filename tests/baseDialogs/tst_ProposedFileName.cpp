// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/ProposedFileName_p.h"
#include "utilsDll/frame/SharedConstants.h"

#include <QtTest/QTest>

using namespace ZYX_zglv6;

class tst_ProposedFileName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void patterns_areTheLists();
    void proposedFileName_mendsTheExtension_data();
    void proposedFileName_mendsTheExtension();
    void proposedFileName_ofEachRawExtension_dropsIt_data();
    void proposedFileName_ofEachRawExtension_dropsIt();
};

void tst_ProposedFileName::patterns_areTheLists()
{
    const QString standard = u"*.tiff *.tif *.jpeg *.jpg"_qs;
    const QString raw = u"*.crw *.mrw *.arw *.raf *.pef *.orf *.ori *.rw2 *.rwl *.nrw *.srw *.cr2 *.cr3 *.nef *.dng "
                        u"*.zyx *.3fr"_qs;
    QCOMPARE(QString(imageFilter), standard);
    QCOMPARE(QString(rawFilter), raw);
    QCOMPARE(QString(imageAndRawFilter), QString(standard + u' ' + raw));
}

void tst_ProposedFileName::proposedFileName_mendsTheExtension_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("proposed");

    const QString tiff = u"TIFF (*.tiff *.tif)"_qs;
    QTest::newRow("raw") << u"/photos/a.nef"_qs << tiff << u"/photos/a.tiff"_qs;
    QTest::newRow("raw, upper case") << u"IMG.NEF"_qs << tiff << u"IMG.tiff"_qs;
    QTest::newRow("raw, mixed case") << u"img.Cr2"_qs << tiff << u"img.tiff"_qs;
    QTest::newRow("standard") << u"a.jpg"_qs << tiff << u"a.jpg"_qs;
    QTest::newRow("standard, first of the filter") << u"a.tiff"_qs << tiff << u"a.tiff"_qs;
    QTest::newRow("standard, other filter") << u"a.jpg"_qs << u"*.png"_qs << u"a.jpg"_qs;
    QTest::newRow("unknown") << u"a.backup"_qs << tiff << u"a.backup"_qs;
    QTest::newRow("no suffix") << u"/photos/a"_qs << tiff << u"/photos/a.tiff"_qs;
    QTest::newRow("empty") << QString() << tiff << u".tiff"_qs;
    QTest::newRow("null, no filter") << QString() << QString() << QString();

    QTest::newRow("part of an entry") << u"a.ra"_qs << tiff << u"a.tiff"_qs;
    QTest::newRow("one letter of an entry") << u"a.n"_qs << tiff << u"a.tiff"_qs;
    QTest::newRow("more than an entry") << u"a.nefx"_qs << tiff << u"a.nefx"_qs;
    QTest::newRow("entry with a blank behind") << u"a.nef "_qs << tiff << u"a.tiff"_qs;
    QTest::newRow("entry, blank, star") << u"a.nef *"_qs << tiff << u"a.tiff"_qs;
    QTest::newRow("dot alone") << u"."_qs << tiff << u"..tiff"_qs;
    QTest::newRow("dot at the end") << u"a."_qs << tiff << u"a..tiff"_qs;
    QTest::newRow("hidden") << u".thumb"_qs << tiff << u".thumb"_qs;
    QTest::newRow("hidden, named as a raw suffix") << u"/p/.nef"_qs << tiff << u"/p/.tiff"_qs;
    QTest::newRow("hidden, with a raw suffix") << u".a.nef"_qs << tiff << u".a.tiff"_qs;

    QTest::newRow("two suffixes, the last raw") << u"x.tar.nef"_qs << tiff << u"x.tar.tiff"_qs;
    QTest::newRow("two suffixes, the first raw") << u"x.nef.tar"_qs << tiff << u"x.nef.tar"_qs;
    QTest::newRow("twice") << u"a.nef.nef"_qs << tiff << u"a.nef.tiff"_qs;
    QTest::newRow("twice, other case") << u"a.nef.NEF"_qs << tiff << u"a.nef.tiff"_qs;
    QTest::newRow("in the folder too") << u"dir.nef/photo.nef"_qs << tiff << u"dir.nef/photo.tiff"_qs;
    QTest::newRow("in the folder alone") << u"dir.nef/photo"_qs << tiff << u"dir.nef/photo.tiff"_qs;
    QTest::newRow("in the folder, standard name") << u"dir.nef/photo.jpg"_qs << tiff << u"dir.nef/photo.jpg"_qs;
    QTest::newRow("folder with a separator behind") << u"/photos/"_qs << tiff << u"/photos/.tiff"_qs;
    QTest::newRow("folder with a raw suffix and a separator") << u"/p.nef/"_qs << tiff << u"/p.nef/.tiff"_qs;
    QTest::newRow("other letters") << u"\u0444\u043e\u0442\u043e.nef"_qs << tiff << u"\u0444\u043e\u0442\u043e.tiff"_qs;

    QTest::newRow("filter, several entries") << u"a.nef"_qs << u"JPEG (*.jpg);;TIFF (*.tiff)"_qs << u"a.jpg"_qs;
    QTest::newRow("filter, upper case") << u"a.nef"_qs << u"*.TIFF"_qs << u"a.TIFF"_qs;
    QTest::newRow("filter, no brackets") << u"a.nef"_qs << u"*.tif"_qs << u"a.tif"_qs;
    QTest::newRow("filter, a digit first") << u"a.nef"_qs << u"Raw (*.3fr *.nef)"_qs << u"a"_qs;
    QTest::newRow("filter, a digit inside") << u"a.nef"_qs << u"*.cr2"_qs << u"a.cr"_qs;
    QTest::newRow("filter, all files") << u"a.nef"_qs << u"All (*.*)"_qs << u"a"_qs;
    QTest::newRow("filter, star alone: from index 1") << u"a.nef"_qs << u"All (*)"_qs << u"a.ll"_qs;
    QTest::newRow("filter, two suffixes") << u"a.nef"_qs << u"*.tar.gz"_qs << u"a.tar"_qs;
    QTest::newRow("filter, pattern cut off") << u"a.nef"_qs << u"TIFF (*."_qs << u"a"_qs;
    QTest::newRow("filter, without a pattern: from index 1") << u"a.nef"_qs << u"xtiff files"_qs << u"a.tiff"_qs;
    QTest::newRow("filter, without a pattern, no letter at index 1") << u"a.nef"_qs << u"x tiff"_qs << u"a"_qs;
    QTest::newRow("filter, one letter") << u"a.nef"_qs << u"t"_qs << u"a"_qs;
    QTest::newRow("filter, none") << u"a.nef"_qs << QString() << u"a"_qs;
    QTest::newRow("filter, none, no suffix") << u"a"_qs << QString() << u"a"_qs;
    QTest::newRow("filter, other letters")
        << u"a.nef"_qs << u"*.\u0442\u0438\u0444\u0444 *.tiff"_qs << u"a.\u0442\u0438\u0444\u0444"_qs;
    QTest::newRow("filter, letters beyond 16 bits end it") << u"a.nef"_qs << u"*.a\U00010400b"_qs << u"a.a"_qs;
}

void tst_ProposedFileName::proposedFileName_mendsTheExtension()
{
    QFETCH(const QString, name);
    QFETCH(const QString, filter);
    QFETCH(const QString, proposed);
    QCOMPARE(proposedFileName(name, filter), proposed);
}

void tst_ProposedFileName::proposedFileName_ofEachRawExtension_dropsIt_data()
{
    QTest::addColumn<QString>("suffix");
    for (const char *suffix : {"crw", "mrw", "arw", "raf", "pef", "orf", "ori", "rw2", "rwl", "nrw", "srw", "cr2",
                               "cr3", "nef", "dng", "zyx", "3fr"}) {
        QTest::newRow(suffix) << QString::fromLatin1(suffix);
    }
}

void tst_ProposedFileName::proposedFileName_ofEachRawExtension_dropsIt()
{
    QFETCH(const QString, suffix);
    QCOMPARE(proposedFileName(u"scan."_qs + suffix, u"*.jpeg"_qs), u"scan.jpeg"_qs);
    QCOMPARE(proposedFileName(u"scan."_qs + suffix.toUpper(), u"*.jpeg"_qs), u"scan.jpeg"_qs);
}

QTEST_APPLESS_MAIN(tst_ProposedFileName)
#include "tst_ProposedFileName.moc"
