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
    <name>CMessageBox</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>不保存并退出</translation>
    </message>
    <message>
        <source>Don&apos;t quit</source>
        <translation>不退出</translation>
    </message>
</context>
<context>
    <name>ProgressPainter</name>
    <message>
        <source>Processing</source>
        <translation>正在处理</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
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
<context>
    <name>aboutDlg</name>
    <message>
        <source>About Zyx Grainlab</source>
        <translation>关于 Zyx Grainlab</translation>
    </message>
    <message>
        <source>The look of real film.</source>
        <translation>重现真实胶片的质感。</translation>
    </message>
    <message>
        <source>%1 is a trademark of Zyx Labs. This software is protected&lt;br&gt;by copyright law and by international treaties.&lt;br&gt;Parts of it may be covered by patents: see &lt;a href="%2"&gt;patents and notices&lt;/a&gt;.&lt;br&gt;&lt;br&gt;&lt;a href="%1"&gt;Read the licenses of the third-party software in this product.&lt;/a&gt;</source>
        <translation>%1 是 Zyx Labs 的商标。本软件受著作权法和国际条约保护。&lt;br&gt;其部分内容可能受专利保护：请参阅&lt;a href="%2"&gt;专利与声明&lt;/a&gt;。&lt;br&gt;&lt;br&gt;&lt;a href="%1"&gt;查看本产品所含第三方软件的许可证。&lt;/a&gt;</translation>
    </message>
</context>
<context>
    <name>CAboutDlg</name>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>内部版本</translation>
    </message>
    <message>
        <source>64 bits</source>
        <translation>64 位</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>This product uses copyrighted material of others, among it the Qt libraries, log4cplus, zlib and Minizip, the Roboto, Open Sans and Maven Pro fonts, Tabler Icons, and calibration data derived from the Lensfun database. It remains the property of its authors and is used under the licenses that follow.%1Names of film products are trademarks of their respective owners. They only describe the look that a simulation comes close to; their owners have no part in this product.%1</source>
        <translation>本产品使用了第三方享有著作权的材料，包括 Qt 库、log4cplus、zlib 和 Minizip，Roboto、Open Sans 和 Maven Pro 字体，Tabler Icons，以及源自 Lensfun 数据库的校准数据。这些材料的权利归其作者所有，本产品依照下列许可证使用这些材料。%1胶片产品名称是其各自所有者的商标。此处仅用于说明模拟效果所接近的质感；这些所有者与本产品无关。%1</translation>
    </message>
</context>
</TS>
