<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT -->
<!-- Copyright (c) 2026 the UtilsDllzglv6 authors -->
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CLanguageManager</name>
    <message>
        <source>language name</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1031</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Windows small space message on drive %1</source>
        <translation>Zyx Grainlab kann nicht gestartet werden, da auf dem Laufwerk %1 nicht genügend freier Speicherplatz vorhanden ist.
Bitte entfernen Sie nicht benötigte Dateien vom Laufwerk und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Out of memory. Program will be closed.</source>
        <translation>Nicht genügend Arbeitsspeicher. Das Programm wird beendet.</translation>
    </message>
    <message>
        <source>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</source>
        <translation>%1 hat keinen freien Arbeitsspeicher mehr. Die Anwendung arbeitet jetzt möglicherweise nicht mehr zuverlässig. Bitte schließen Sie %2 und Photoshop, beenden Sie alle anderen laufenden Programme und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Unhandled exception. Program will be closed.</source>
        <translation>Unbehandelte Ausnahme. Das Programm wird beendet.</translation>
    </message>
    <message>
        <source>Sorry, but this file type is not supported. Please, try again.</source>
        <translation>Dieser Dateityp wird leider nicht unterstützt. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>in</source>
        <translation>Zoll</translation>
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
