<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT -->
<!-- Copyright (c) 2026 the UtilsDllzglv6 authors -->
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CLanguageManager</name>
    <message>
        <source>language name</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>2052</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Windows small space message on drive %1</source>
        <translation>磁盘 %1 上的可用空间不足，Zyx Grainlab 无法启动。
请删除该磁盘上不需要的文件，然后重试。</translation>
    </message>
    <message>
        <source>Out of memory. Program will be closed.</source>
        <translation>内存不足。程序将关闭。</translation>
    </message>
    <message>
        <source>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</source>
        <translation>%1 的内存已耗尽，应用程序可能会变得不稳定。请关闭 %2 和 Photoshop，退出所有其他正在运行的程序，然后重试。</translation>
    </message>
    <message>
        <source>Unhandled exception. Program will be closed.</source>
        <translation>发生未处理的异常。程序将关闭。</translation>
    </message>
    <message>
        <source>Sorry, but this file type is not supported. Please, try again.</source>
        <translation>抱歉，不支持此文件类型。请重试。</translation>
    </message>
    <message>
        <source>px</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>in</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>毫米</translation>
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
