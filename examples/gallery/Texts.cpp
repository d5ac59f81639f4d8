// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Texts.h"

#include "utilsDll/look/LanguageManager.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

namespace {

const QStringList &english()
{
    static const QStringList texts{
        u"The file “mountain-lake.jpg” can’t be opened."_qs,
        u"The film “Silver 400” has been added to your collection."_qs,
        u"Do you want to replace the preset “Evening light”?"_qs,
        u"The photograph was taken upright. Do you want to rotate it?"_qs,
        u"Don’t ask again"_qs,
        u"Do you want to save the changes to “mountain-lake.jpg”?"_qs,
        u"Three photographs are still being processed. If you quit now, their changes are lost."_qs,
        u"The photograph is larger than the memory that is free at present. It can be opened all the same, but the "
        u"preview will be coarse, and every change will take several seconds. Close other photographs first, or open "
        u"this one at half its size: the grain of the film is then computed for the smaller image, and looks the same "
        u"when it is printed. Your original file stays as it is in either case, and nothing is written until you save."_qs,
    };
    return texts;
}

const QStringList &german()
{
    static const QStringList texts{
        u"Die Datei „mountain-lake.jpg“ kann nicht geöffnet werden."_qs,
        u"Der Film „Silver 400“ wurde Ihrer Sammlung hinzugefügt."_qs,
        u"Möchten Sie die Voreinstellung „Abendlicht“ ersetzen?"_qs,
        u"Das Foto wurde im Hochformat aufgenommen. Möchten Sie es drehen?"_qs,
        u"Nicht mehr fragen"_qs,
        u"Möchten Sie die Änderungen an „mountain-lake.jpg“ speichern?"_qs,
        u"Drei Fotos werden noch verarbeitet. Wenn Sie jetzt beenden, gehen ihre Änderungen verloren."_qs,
        u"Das Foto ist größer als der Speicher, der zurzeit frei ist. Es kann trotzdem geöffnet werden, doch die "
        u"Vorschau wird grob sein, und jede Änderung wird mehrere Sekunden dauern. Schließen Sie zuerst andere Fotos, "
        u"oder öffnen Sie dieses in halber Größe: Das Korn des Films wird dann für das kleinere Bild berechnet und "
        u"sieht im Druck genauso aus. Ihre Originaldatei bleibt in beiden Fällen, wie sie ist, und nichts wird "
        u"geschrieben, bevor Sie speichern."_qs,
    };
    return texts;
}

const QStringList &french()
{
    static const QStringList texts{
        u"Impossible d’ouvrir le fichier « mountain-lake.jpg »."_qs,
        u"Le film « Silver 400 » a été ajouté à votre collection."_qs,
        u"Voulez-vous remplacer le préréglage « Lumière du soir » ?"_qs,
        u"La photo a été prise à la verticale. Voulez-vous la faire pivoter ?"_qs,
        u"Ne plus demander"_qs,
        u"Voulez-vous enregistrer les modifications de « mountain-lake.jpg » ?"_qs,
        u"Trois photos sont encore en cours de traitement. Si vous quittez maintenant, leurs modifications seront "
        u"perdues."_qs,
        u"La photo est plus grande que la mémoire actuellement disponible. Elle peut tout de même être ouverte, mais "
        u"l’aperçu sera grossier et chaque modification prendra plusieurs secondes. Fermez d’abord d’autres photos, ou "
        u"ouvrez celle-ci à la moitié de sa taille : le grain du film est alors calculé pour l’image réduite et "
        u"paraît identique à l’impression. Dans les deux cas, votre fichier d’origine reste tel quel, et rien n’est "
        u"écrit avant que vous n’enregistriez."_qs,
    };
    return texts;
}

const QStringList &japanese()
{
    static const QStringList texts{
        u"ファイル「mountain-lake.jpg」を開けません。"_qs,
        u"フィルム「Silver 400」をコレクションに追加しました。"_qs,
        u"プリセット「夕暮れの光」を置き換えますか？"_qs,
        u"この写真は縦位置で撮影されています。回転しますか？"_qs,
        u"次回から確認しない"_qs,
        u"「mountain-lake.jpg」への変更を保存しますか？"_qs,
        u"3 枚の写真がまだ処理中です。今終了すると、その変更は失われます。"_qs,
        u"この写真は、現在の空きメモリより大きいサイズです。開くことはできますが、プレビューは粗くなり、"
        u"変更のたびに数秒かかります。先にほかの写真を閉じるか、この写真を半分のサイズで開いてください。"
        u"その場合、フィルムの粒子は小さい画像に合わせて計算され、印刷した結果は同じように見えます。"
        u"どちらの場合も元のファイルは変更されず、保存するまでは何も書き込まれません。"_qs,
    };
    return texts;
}

const QStringList &chinese()
{
    static const QStringList texts{
        u"无法打开文件“mountain-lake.jpg”。"_qs,
        u"胶片“Silver 400”已添加到您的收藏。"_qs,
        u"要替换预设“黄昏光线”吗？"_qs,
        u"这张照片是竖拍的。要旋转它吗？"_qs,
        u"不再询问"_qs,
        u"要保存对“mountain-lake.jpg”的更改吗？"_qs,
        u"还有三张照片正在处理。如果现在退出，它们的更改将丢失。"_qs,
        u"这张照片比目前可用的内存还大。仍然可以打开它，但预览会比较粗糙，每次更改都需要几秒钟。"
        u"请先关闭其他照片，或者以一半的尺寸打开这张照片：此时胶片颗粒会按较小的图像计算，打印出来的效果相同。"
        u"无论哪种情况，您的原始文件都保持不变，在您保存之前不会写入任何内容。"_qs,
    };
    return texts;
}

} // namespace

QString galleryText(Text text)
{
    static const QHash<QString, QStringList> languages{
        {u"de"_qs, german()}, {u"fr"_qs, french()}, {u"ja"_qs, japanese()}, {u"zh_CN"_qs, chinese()}};
    const QString language = ZYX_zglv6::CLanguageManager::getInstance().currentLanguageAbbrv();
    return languages.value(language, english()).at(qsizetype(text));
}
