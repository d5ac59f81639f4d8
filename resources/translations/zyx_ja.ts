<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT -->
<!-- Copyright (c) 2026 the UtilsDllzglv6 authors -->
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>CLanguageManager</name>
    <message>
        <source>language name</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1041</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>保存せずに終了</translation>
    </message>
    <message>
        <source>Don&apos;t quit</source>
        <translation>終了しない</translation>
    </message>
</context>
<context>
    <name>ProgressPainter</name>
    <message>
        <source>Processing</source>
        <translation>処理中</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Windows small space message on drive %1</source>
        <translation>ディスク %1 の空き容量が不足しているため、Zyx Grainlab を起動できません。
ディスクから不要なファイルを削除してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Out of memory. Program will be closed.</source>
        <translation>メモリが不足しています。プログラムを終了します。</translation>
    </message>
    <message>
        <source>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</source>
        <translation>%1 のメモリが不足しました。アプリケーションの動作が不安定になる可能性があります。%2 と Photoshop を閉じ、実行中のほかのプログラムをすべて終了してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Unhandled exception. Program will be closed.</source>
        <translation>未処理の例外が発生しました。プログラムを終了します。</translation>
    </message>
    <message>
        <source>Sorry, but this file type is not supported. Please, try again.</source>
        <translation>申し訳ありませんが、このファイル形式はサポートされていません。もう一度お試しください。</translation>
    </message>
    <message>
        <source>px</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>in</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
</context>
<context>
    <name>aboutDlg</name>
    <message>
        <source>About Zyx Grainlab</source>
        <translation>Zyx Grainlab について</translation>
    </message>
    <message>
        <source>The look of real film.</source>
        <translation>本物のフィルムの風合いを。</translation>
    </message>
    <message>
        <source>%1 is a trademark of Zyx Labs. This software is protected&lt;br&gt;by copyright law and by international treaties.&lt;br&gt;Parts of it may be covered by patents: see &lt;a href="%2"&gt;patents and notices&lt;/a&gt;.&lt;br&gt;&lt;br&gt;&lt;a href="%1"&gt;Read the licenses of the third-party software in this product.&lt;/a&gt;</source>
        <translation>%1 は Zyx Labs の商標です。本ソフトウェアは、著作権法および&lt;br&gt;国際条約によって保護されています。一部の機能は特許の対象となる&lt;br&gt;場合があります。&lt;a href="%2"&gt;特許と注意事項&lt;/a&gt;をご覧ください。&lt;br&gt;&lt;br&gt;&lt;a href="%1"&gt;本製品に含まれるサードパーティ製ソフトウェアのライセンスを読む。&lt;/a&gt;</translation>
    </message>
</context>
<context>
    <name>CAboutDlg</name>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>ビルド</translation>
    </message>
    <message>
        <source>64 bits</source>
        <translation>64 ビット</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>This product uses copyrighted material of others, among it the Qt libraries, log4cplus, zlib and Minizip, the Roboto, Open Sans and Maven Pro fonts, Tabler Icons, and calibration data derived from the Lensfun database. It remains the property of its authors and is used under the licenses that follow.%1Names of film products are trademarks of their respective owners. They only describe the look that a simulation comes close to; their owners have no part in this product.%1</source>
        <translation>本製品には、Qt ライブラリ、log4cplus、zlib および Minizip、フォント Roboto、Open Sans、Maven Pro、Tabler Icons、Lensfun データベースから派生したキャリブレーションデータなど、第三者の著作物が使用されています。これらの著作権は各著作者に帰属し、各著作物は以下のライセンスに基づいて使用されています。%1フィルム製品の名称は、各所有者の商標です。これらの名称は、シミュレーションが近づけている風合いを説明するためにのみ使用しています。各所有者は本製品に関与していません。%1</translation>
    </message>
</context>
</TS>
