// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"

#include "utilsDll/frame/QtResources.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QResource>
#include <QtCore/QSet>
#include <QtGui/QImage>
#include <QtGui/QImageReader>
#include <QtTest/QTest>

#include <algorithm>

using namespace ZYX_zglv6;

namespace {

const QStringList ownFolders{u"calibration"_qs, u"css"_qs, u"fonts"_qs,       u"icons"_qs,       u"presets"_qs,
                             u"qml"_qs,         u"qss"_qs, u"timeMachine"_qs, u"translations"_qs};

/*! The files at and below a folder of the tree. */
QStringList filesBelow(const QString &folder)
{
    QStringList files;
    const QDir directory(u":/"_qs + folder);
    for (const QString &name : directory.entryList(QDir::Files, QDir::Name)) {
        files.append(directory.filePath(name));
    }
    for (const QString &name : directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        files.append(filesBelow(folder + u"/" + name));
    }
    return files;
}

QStringList allFiles()
{
    QStringList files;
    for (const QString &folder : ownFolders) {
        files.append(filesBelow(folder));
    }
    return files;
}

QStringList pictures()
{
    return (filesBelow(u"icons"_qs) + filesBelow(u"qml"_qs)).filter(QRegularExpression(u"\\.(svg|png)$"_qs));
}

QImage painted(const QString &path)
{
    return QImageReader(path).read().convertToFormat(QImage::Format_ARGB32);
}

bool isBlank(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (std::any_of(line, line + image.width(), [](QRgb pixel) { return qAlpha(pixel) > 0; })) {
            return false;
        }
    }
    return true;
}

/*! "save-image" and "hover" of ".../save-image-hover.svg"; what a name has behind its state is part of the base. */
struct NameParts
{
    QString base;
    QString state;
};

NameParts partsOf(const QString &path)
{
    static const QRegularExpression form(
        u"^(.*/[^/]*?(?<!-not))-(selected-hover|sekected-hover|default|hover|selected|onpressed|disabled|active)"
        "(-fixed|-\\(corner-[0-9]+px\\))?\\.(svg|png)$"_qs);
    const QRegularExpressionMatch match = form.match(path);
    return match.hasMatch() ? NameParts{match.captured(1) + match.captured(3) + u"." + match.captured(4),
                                        match.captured(2).replace(u"sekected"_qs, u"selected"_qs)}
                            : NameParts{path, QString()};
}

/*! The states of each base name that has any. */
QMap<QString, QSet<QString>> families()
{
    QMap<QString, QSet<QString>> result;
    for (const QString &path : pictures()) {
        const NameParts parts = partsOf(path);
        if (!parts.state.isEmpty()) {
            result[parts.base].insert(parts.state);
        }
    }
    return result;
}

} // namespace

class tst_ResourceTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tree_has499Paths();
    void folder_hasItsFiles_data();
    void folder_hasItsFiles();
    void mainAndTranslations_areReleasedTogether();
    void englishExtraSheet_isEmpty();
    void chineseExtraSheet_doesNotExist();
    void englishQtCatalogue_doesNotExist();
    void japaneseSlogan_isNamedJp();
    void compressed_areThese34();

    void names_keepTheRules();
    void families_areComplete();
    void states_lookDifferent();
    void pictures_loadAndAreNotBlank();
    void cornerNote_isTheCornerOfTheImage();
    void appIcon_hasItsSize();
    void calibrationModules_haveTheSizeOfRealOnes();
    void texts_areUtf8WithoutAMark();
};

/*! Of 500 entries: one font is listed twice, which tst_QtResources counts. */
void tst_ResourceTree::tree_has499Paths()
{
    QCOMPARE(allFiles().size(), 499);
}

void tst_ResourceTree::folder_hasItsFiles_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("names");

    const auto row = [](const char *folder, int count, const char *names) {
        QTest::newRow(folder) << count << QString::fromLatin1(names).split(u' ', Qt::SkipEmptyParts);
    };
    row("calibration/caf", 2, "C33759b_023.caf C34062a_011.caf");
    row("calibration/db", 1, "CAFList5.db");
    row("css", 1, "checkForUpdateHtmlStyles.css");
    row("fonts", 7,
        "MavenPro-Regular.ttf MavenProLight-200.otf OpenSans-Light.ttf Roboto-Bold.ttf Roboto-Light.ttf "
        "Roboto-Medium.ttf Roboto-Regular.ttf");
    row("presets", 3, "default.xml presetInfo.xml agfaZPreset.preset");
    row("qml/SwitchButton", 6,
        "spect-bw.svg spect-bw-not-selected.svg spect-col.svg spect-col-not-selected.svg switch-bg.svg toogle.svg");
    row("qml", 6, "");
    row("qss", 18,
        "combobox.qss crash_sender.qss custom.qss dialogs.qss essintial.qss extra-de.qss extra-en.qss extra-fr.qss "
        "extra-ja.qss menu.qss previewArea.qss printing.qss sideBar.qss slider.qss timeMachine.qss toolBar.qss "
        "tools.qss win.qss");
    row("timeMachine", 1, "decadesInfo.xml");
    row("translations", 9,
        "zyx_de.qm zyx_en.qm zyx_fr.qm zyx_ja.qm zyx_zh_CN.qm qt_de.qm qt_fr.qm qt_ja.qm qt_zh_CN.qm");

    row("icons", 451,
        "alert.svg checkmark.svg logo.svg gl-s.svg orange-bar.svg radiobutton-checked.svg slogan_en.svg slogan_de.svg "
        "slogan_fr.svg slogan_jp.svg slogan_zh_CN.svg");
    row("icons/PresetInfo", 8, "");
    row("icons/ToolBarBottom", 3, "folder-default-fixed.svg");
    row("icons/about", 1, "left-copyright.png");
    row("icons/app_icon", 8,
        "logo_16.png logo_32.png logo_48.png logo_64.png logo_128.png logo_256.png logo_512.png logo_1024.png");
    row("icons/arrows", 6,
        "left-icon-default.svg left-icon-hover.svg left-icon-onpressed.svg right-icon-default.svg "
        "right-icon-hover.svg right-icon-onpressed.svg");
    row("icons/backgroungs", 13,
        "cursor-pointer.png cursor-transform-size.png preview-shadow-bottom.png preview-shadow-left.png "
        "preview-shadow-left-bottom.png preview-shadow-left-top.png preview-shadow-right.png "
        "preview-shadow-right-bottom.png preview-shadow-right-top.png preview-shadow-top.png "
        "size-field-(corner-2px).png");
    row("icons/buttons", 12, "save-aspreset-default.svg save-image-default.svg");
    row("icons/caf", 2, "icon-CAF-1.svg icon-CAF-2.svg");
    row("icons/combobox", 2, "arrows-combo.svg arrow-combo-single.svg");
    row("icons/crop", 6, "icons-crop-transparent.svg");
    row("icons/cursors", 5, "draging.png hand.png moveAll.png zoom-in.png zoom-out.png");
    row("icons/frame", 9, "");
    row("icons/horizon", 4, "line-point.svg");
    row("icons/lightleak", 20, "any-size-default.svg bottom-default.svg");
    row("icons/logo", 1, "");
    row("icons/menuBar", 1, "menu-separator.png");
    row("icons/printing", 57, "ic-fit-page-disabled.png");
    row("icons/processing", 3, "processing1.png processing2.png processing3.png");
    row("icons/recentFiles", 11, "no-recent-file-icon.png");
    row("icons/scroll_bars", 18, "");
    row("icons/secondary_windows", 8, "error.svg information.svg warning.svg progressbar.png");
    row("icons/settingsPanel", 8, "add-color.svg correction-switch-on-hover.png");
    row("icons/side_bars", 76, "randomize-sekected-hover.svg ic-filmstrip-no-image.png histogram-graph-r.png");
    for (const char *part : {"redSlider", "greenSlider", "blueSlider", "cyanSlider", "magentaSlider"}) {
        row(QByteArray("icons/side_bars/").append(part).constData(), 5, "");
    }
    row("icons/side_bars/presetsFilter", 24, "");
    row("icons/slider", 15, "bubble.png slidebar-active.png");
    row("icons/snapshot", 3, "add-default.svg");
    row("icons/stars", 4, "favorite.svg favorite-orange.svg favorite-filter.svg favorite-notselected.svg");
    row("icons/timeMachine", 4, "arrow-up.svg arrow-down-disabled.svg");
    row("icons/toneCurves", 41,
        "B-selected-hover.svg RVB-default.svg RVB-selected.svg RVB-selected-hover.svg RVB-hover.svg V-default.svg "
        "V-selected.svg V-selected-hover.svg V-hover.svg");
    row("icons/toning", 16, "frame-default.svg icon_hide-default.svg");
    row("icons/toolBar", 58,
        "compare-1-default.svg crop-selected.svg histo-hover.svg horizon-default.svg preview-split-onpressed.svg "
        "zoom-default.svg");
    row("icons/vignetting", 5, "center-vigneting-pin.svg");
}

void tst_ResourceTree::folder_hasItsFiles()
{
    QFETCH(const int, count);
    QFETCH(const QStringList, names);

    const QString folder = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(filesBelow(folder).size(), count);
    const QStringList direct = QDir(u":/"_qs + folder).entryList(QDir::Files);
    for (const QString &name : names) {
        QVERIFY2(direct.contains(name), qPrintable(name));
    }
    if (folder == u"icons") {
        QCOMPARE(direct.size(), 23);
        QCOMPARE(QDir(u":/icons"_qs).entryList(QDir::Dirs).size(), 31);
    }
}

void tst_ResourceTree::mainAndTranslations_areReleasedTogether()
{
    RUN_IN_FRESH_PROCESS();
    QCOMPARE(filesBelow(u"translations"_qs).size(), 9);
    QCOMPARE(filesBelow(u"calibration"_qs).size(), 3);
    cleanupQtResources(); // the main collection and the translations
    QCOMPARE(filesBelow(u"calibration"_qs).size(), 3);
    QCOMPARE(filesBelow(u"qss"_qs), QStringList(u":/qss/win.qss"_qs));
    QCOMPARE(allFiles().size(), 4);
}

void tst_ResourceTree::englishExtraSheet_isEmpty()
{
    QFile sheet(u":/qss/extra-en.qss"_qs);
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    QCOMPARE(sheet.readAll(), QByteArray());
}

void tst_ResourceTree::chineseExtraSheet_doesNotExist()
{
    QVERIFY(!QFile::exists(u":/qss/extra-zh_CN.qss"_qs));
}

void tst_ResourceTree::englishQtCatalogue_doesNotExist()
{
    QVERIFY(!QFile::exists(u":/translations/qt_en.qm"_qs));
}

void tst_ResourceTree::japaneseSlogan_isNamedJp()
{
    QVERIFY(QFile::exists(u":/icons/slogan_jp.svg"_qs));
    QVERIFY(!QFile::exists(u":/icons/slogan_ja.svg"_qs));
}

void tst_ResourceTree::compressed_areThese34()
{
    QStringList compressed;
    for (const QString &path : allFiles()) {
        const QResource resource(path);
        const QResource::Compression kind = resource.compressionAlgorithm();
        QVERIFY2(kind == QResource::NoCompression || kind == QResource::ZlibCompression, qPrintable(path));
        if (kind == QResource::ZlibCompression) {
            compressed.append(path);
            QVERIFY2(resource.size() < resource.uncompressedSize(), qPrintable(path));
        }
    }
    QCOMPARE(compressed.size(), 34);
    QCOMPARE(compressed.filter(QRegularExpression(u"^:/qss/"_qs)).size(), 11);
    QCOMPARE(compressed.filter(QRegularExpression(u"^:/translations/"_qs)).size(), 4);
    QVERIFY(compressed.contains(u":/calibration/db/CAFList5.db"_qs));
    QVERIFY(compressed.contains(u":/presets/default.xml"_qs));
    QVERIFY(compressed.contains(u":/presets/agfaZPreset.preset"_qs));
}

void tst_ResourceTree::names_keepTheRules()
{
    // Names that hosts know by another spelling.
    static const QRegularExpression kept(
        u"/(logo_[0-9]+\\.png|slogan_[a-zA-Z_]+\\.svg|icon-CAF-[12]\\.svg|moveAll\\.png|"
        "icon_(hide|show)-[a-z-]+\\.svg|(RGB|RVB|[RGBVL])-[a-z-]+\\.svg)$"_qs);
    static const QRegularExpression rule(u"/[a-z0-9]+(-[a-z0-9]+)*(-\\(corner-[0-9]+px\\))?\\.(svg|png)$"_qs);
    for (const QString &path : pictures()) {
        QVERIFY2(kept.match(path).hasMatch() || rule.match(path).hasMatch(), qPrintable(path));
    }
    QCOMPARE(pictures().size(), 451 + 6);
}

void tst_ResourceTree::families_areComplete()
{
    using Names = QSet<QString>;
    const Names push{u"default"_qs, u"hover"_qs, u"onpressed"_qs};
    const Names toggle{u"default"_qs, u"hover"_qs, u"selected"_qs, u"selected-hover"_qs};
    const QString disabled = u"disabled"_qs;
    const QList<Names> kinds{push,
                             push + Names{disabled},
                             toggle,
                             toggle + Names{disabled},
                             {u"default"_qs, u"hover"_qs},
                             {u"default"_qs, u"hover"_qs, disabled},
                             {u"default"_qs, u"hover"_qs, u"selected"_qs, disabled},
                             {u"default"_qs, u"active"_qs, disabled}};
    const QMap<QString, Names> found = families();
    QVERIFY(found.size() > 60);
    for (auto family = found.cbegin(); family != found.cend(); ++family) {
        const bool isPlainDefault = QFile::exists(family.key()); // "line-point.svg" beside "line-point-hover.svg"
        const Names states = isPlainDefault ? family.value() + Names{u"default"_qs} : family.value();
        QVERIFY2(kinds.contains(states) || isPlainDefault, qPrintable(family.key()));
    }
}

void tst_ResourceTree::states_lookDifferent()
{
    QMap<QString, QMap<QByteArray, QString>> seen; // pictures by base name and content
    for (const QString &path : pictures()) {
        const QImage image = painted(path);
        const QByteArray content(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes());
        QString &first = seen[partsOf(path).base][content];
        QVERIFY2(first.isEmpty(), qPrintable(QString(path + u" looks like " + first)));
        first = path;
    }
}

void tst_ResourceTree::pictures_loadAndAreNotBlank()
{
    for (const QString &path : pictures()) {
        QImageReader reader(path);
        reader.setDecideFormatFromContent(false);
        QVERIFY2(reader.size().isValid(), qPrintable(path));
        const QImage image = painted(path);
        QVERIFY2(!image.isNull(), qPrintable(path));
        QCOMPARE(image.size(), reader.size());
        QVERIFY2(!isBlank(image), qPrintable(path));
    }
}

void tst_ResourceTree::cornerNote_isTheCornerOfTheImage()
{
    static const QRegularExpression note(u"-\\(corner-([0-9]+)px\\)\\.png$"_qs);
    int count = 0;
    for (const QString &path : pictures()) {
        const QRegularExpressionMatch match = note.match(path);
        if (match.hasMatch()) {
            const int side = 2 * match.captured(1).toInt() + 1; // two corners with one pixel to stretch between them
            QCOMPARE(QImageReader(path).size(), QSize(side, side));
            ++count;
        }
    }
    QVERIFY(count > 0);
}

void tst_ResourceTree::appIcon_hasItsSize()
{
    for (const int size : {16, 32, 48, 64, 128, 256, 512, 1024}) {
        QCOMPARE(QImageReader(u":/icons/app_icon/logo_%1.png"_qs.arg(size)).size(), QSize(size, size));
    }
}

void tst_ResourceTree::calibrationModules_haveTheSizeOfRealOnes()
{
    QCOMPARE(QFile(u":/calibration/caf/C33759b_023.caf"_qs).size() / 1024, 303);
    QCOMPARE(QFile(u":/calibration/caf/C34062a_011.caf"_qs).size() / 1024, 394);
}

void tst_ResourceTree::texts_areUtf8WithoutAMark()
{
    static const QRegularExpression isText(u"\\.(css|qss|svg)$"_qs);
    for (const QString &path : allFiles().filter(isText)) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        QCOMPARE(QString::fromUtf8(content).toUtf8(), content);
        QVERIFY2(!content.startsWith("\xef\xbb\xbf"), qPrintable(path));
    }
}

QTEST_GUILESS_MAIN(tst_ResourceTree)
#include "tst_ResourceTree.moc"
