// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "IndexPage.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QImage>
#include <QtTest/QTest>

namespace {

/*! What the page holds, read as XML, so that an error in its form is seen. */
struct Page
{
    QString error;
    QStringList elements;
    QList<QXmlStreamAttributes> images;
    QStringList headings; // h3
    QStringList summaries;
    QStringList links;
    QStringList ids;
    int openDetails = 0;
};

Page read(const QString &path)
{
    QFile file(path);
    Page page;
    page.error = file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const QString element = reader.name().toString();
        const QXmlStreamAttributes attributes = reader.attributes();
        page.elements.append(element);
        page.openDetails += element == u"details" && attributes.hasAttribute(u"open"_qs) ? 1 : 0;
        if (attributes.hasAttribute(u"id"_qs)) {
            page.ids.append(attributes.value(u"id"_qs).toString());
        }
        if (element == u"img") {
            page.images.append(attributes);
        } else if (element == u"a") {
            page.links.append(attributes.value(u"href"_qs).toString());
        } else if (element == u"h3") {
            page.headings.append(reader.readElementText());
        } else if (element == u"summary") {
            page.summaries.append(reader.readElementText());
        }
    }
    page.error += reader.hasError() ? reader.errorString() : QString();
    return page;
}

} // namespace

/*! The page of the gallery's pictures. */
class tst_IndexPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void page_showsEachPicture();
    void page_withoutPictures_isWellFormed();
    void page_namesOnlyWhatIsThere();
    void write_intoNoFolder_isAFailure();

private:
    static bool addPicture(const QTemporaryDir &folder, const QString &name, const QSize &size = QSize(30, 20));
};

bool tst_IndexPage::addPicture(const QTemporaryDir &folder, const QString &name, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image.save(folder.filePath(name));
}

void tst_IndexPage::page_showsEachPicture()
{
    const QTemporaryDir folder;
    QVERIFY(addPicture(folder, u"de-1-ltr-box-save.png"_qs));
    QVERIFY(addPicture(folder, u"zh_CN-1-ltr-box-save.png"_qs));
    QVERIFY(addPicture(folder, u"de-1.5-rtl-box-save.png"_qs, QSize(45, 30)));
    QVERIFY(addPicture(folder, u"de-1-ltr-box-rotate.png"_qs));
    QVERIFY(addPicture(folder, u"de-1-ltr-widget-unknown.png"_qs));
    QVERIFY(addPicture(folder, u"de-01-custom.png"_qs));
    QVERIFY(addPicture(folder, u"no exhibit.png"_qs));

    QVERIFY(
        writeIndexPage(folder.path(), {{u"box-save"_qs, u"Save & \"go\" <on>"_qs}, {u"box-rotate"_qs, u"Rotate"_qs}}));
    const Page page = read(folder.filePath(u"index.html"_qs));
    QCOMPARE(page.error, QString());
    QCOMPARE(page.headings, (QStringList{u"Save & \"go\" <on>"_qs, u"Rotate"_qs, u"unknown"_qs, u"custom"_qs}));
    QCOMPARE(page.summaries,
             (QStringList{u"Ratio 1, left to right"_qs, u"Ratio 1.5, right to left"_qs, u"Ratio 1, left to right"_qs,
                          u"Ratio 1, left to right"_qs, u"Ratio 1, left to right"_qs}));
    QCOMPARE(page.openDetails, 4); // the first one of each exhibit
    QStringList sources;
    for (const QXmlStreamAttributes &image : page.images) {
        sources.append(image.value(u"src"_qs).toString());
        QCOMPARE(image.value(u"width"_qs), u"30"_qs); // in units
        QCOMPARE(image.value(u"height"_qs), u"20"_qs);
    }
    QCOMPARE(sources,
             (QStringList{u"de-1-ltr-box-save.png"_qs, u"zh_CN-1-ltr-box-save.png"_qs, u"de-1.5-rtl-box-save.png"_qs,
                          u"de-1-ltr-box-rotate.png"_qs, u"de-1-ltr-widget-unknown.png"_qs, u"de-01-custom.png"_qs}));
    QCOMPARE(page.images.at(1).value(u"alt"_qs), u"Save & \"go\" <on>: zh_CN, ratio 1, left to right"_qs);
}

void tst_IndexPage::page_withoutPictures_isWellFormed()
{
    const QTemporaryDir folder;
    QVERIFY(writeIndexPage(folder.path(), {}));
    const Page page = read(folder.filePath(u"index.html"_qs));
    QCOMPARE(page.error, QString());
    QCOMPARE(page.images.size(), 0);
    QVERIFY(!page.elements.contains(u"script"_qs));
    QCOMPARE(page.links.size(), 5);
    for (const QString &link : page.links) {
        QVERIFY2(page.ids.contains(link.mid(1)), qPrintable(link));
    }
}

void tst_IndexPage::page_namesOnlyWhatIsThere()
{
    const QTemporaryDir folder;
    QVERIFY(addPicture(folder, u"en-1-ltr-box-save.png"_qs));
    QVERIFY(writeIndexPage(folder.path(), {{u"box-rotate"_qs, u"Rotate"_qs}, {u"box-save"_qs, u"Save"_qs}}));
    QCOMPARE(read(folder.filePath(u"index.html"_qs)).headings, QStringList{u"Save"_qs});
}

void tst_IndexPage::write_intoNoFolder_isAFailure()
{
    const QTemporaryDir folder;
    QVERIFY(!writeIndexPage(folder.filePath(u"none"_qs), {}));
}

QTEST_GUILESS_MAIN(tst_IndexPage)
#include "tst_IndexPage.moc"
