<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT -->
<!-- Copyright (c) 2026 the UtilsDllzglv6 authors -->
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>CLanguageManager</name>
    <message>
        <source>language name</source>
        <translation>English</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1033</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotate</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Don&apos;t save</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>Quit without saving</translation>
    </message>
    <message>
        <source>Don&apos;t quit</source>
        <translation>Don&apos;t quit</translation>
    </message>
</context>
<context>
    <name>ProgressPainter</name>
    <message>
        <source>Processing</source>
        <translation>Processing</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Windows small space message on drive %1</source>
        <translation>Zyx Grainlab cannot start since there is not enough free space on disk %1.
Please remove unnecessary files from the disk and try again.</translation>
    </message>
    <message>
        <source>Out of memory. Program will be closed.</source>
        <translation>Out of memory. Program will be closed.</translation>
    </message>
    <message>
        <source>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</source>
        <translation>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</translation>
    </message>
    <message>
        <source>Unhandled exception. Program will be closed.</source>
        <translation>Unhandled exception. Program will be closed.</translation>
    </message>
    <message>
        <source>Sorry, but this file type is not supported. Please, try again.</source>
        <translation>Sorry, but this file type is not supported. Please, try again.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>in</source>
        <translation>in</translation>
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
        <translation>About Zyx Grainlab</translation>
    </message>
    <message>
        <source>The look of real film.</source>
        <translation>The look of real film.</translation>
    </message>
    <message>
        <source>%1 is a trademark of Zyx Labs. This software is protected&lt;br&gt;by copyright law and by international treaties.&lt;br&gt;Parts of it may be covered by patents: see &lt;a href="%2"&gt;patents and notices&lt;/a&gt;.&lt;br&gt;&lt;br&gt;&lt;a href="%1"&gt;Read the licenses of the third-party software in this product.&lt;/a&gt;</source>
        <translation>%1 is a trademark of Zyx Labs. This software is protected&lt;br&gt;by copyright law and by international treaties.&lt;br&gt;Parts of it may be covered by patents: see &lt;a href="%2"&gt;patents and notices&lt;/a&gt;.&lt;br&gt;&lt;br&gt;&lt;a href="%1"&gt;Read the licenses of the third-party software in this product.&lt;/a&gt;</translation>
    </message>
</context>
<context>
    <name>CAboutDlg</name>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Build</translation>
    </message>
    <message>
        <source>64 bits</source>
        <translation>64 bits</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licenses</translation>
    </message>
    <message>
        <source>This product uses copyrighted material of others, among it the Qt libraries, log4cplus, zlib and Minizip, the Roboto, Open Sans and Maven Pro fonts, Tabler Icons, and calibration data derived from the Lensfun database. It remains the property of its authors and is used under the licenses that follow.%1Names of film products are trademarks of their respective owners. They only describe the look that a simulation comes close to; their owners have no part in this product.%1</source>
        <translation>This product uses copyrighted material of others, among it the Qt libraries, log4cplus, zlib and Minizip, the Roboto, Open Sans and Maven Pro fonts, Tabler Icons, and calibration data derived from the Lensfun database. It remains the property of its authors and is used under the licenses that follow.%1Names of film products are trademarks of their respective owners. They only describe the look that a simulation comes close to; their owners have no part in this product.%1</translation>
    </message>
</context>
</TS>
