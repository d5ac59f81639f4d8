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
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
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
</TS>
