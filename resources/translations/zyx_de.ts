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
    <name>CMessageBox</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>Ohne Speichern beenden</translation>
    </message>
    <message>
        <source>Don&apos;t quit</source>
        <translation>Nicht beenden</translation>
    </message>
</context>
<context>
    <name>ProgressPainter</name>
    <message>
        <source>Processing</source>
        <translation>Wird verarbeitet</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
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
<context>
    <name>aboutDlg</name>
    <message>
        <source>About Zyx Grainlab</source>
        <translation>Über Zyx Grainlab</translation>
    </message>
    <message>
        <source>The look of real film.</source>
        <translation>So sieht echter Film aus.</translation>
    </message>
    <message>
        <source>%1 is a trademark of Zyx Labs. This software is protected&lt;br&gt;by copyright law and by international treaties.&lt;br&gt;Parts of it may be covered by patents: see &lt;a href="%2"&gt;patents and notices&lt;/a&gt;.&lt;br&gt;&lt;br&gt;&lt;a href="%1"&gt;Read the licenses of the third-party software in this product.&lt;/a&gt;</source>
        <translation>%1 ist eine Marke von Zyx Labs. Diese Software ist durch das&lt;br&gt;Urheberrecht und durch internationale Verträge geschützt. Teile davon&lt;br&gt;können patentrechtlich geschützt sein: siehe &lt;a href="%2"&gt;Patente und Hinweise&lt;/a&gt;.&lt;br&gt;&lt;br&gt;&lt;a href="%1"&gt;Lesen Sie die Lizenzen der enthaltenen Software von Drittanbietern.&lt;/a&gt;</translation>
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
        <translation>64 Bit</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>This product uses copyrighted material of others, among it the Qt libraries, log4cplus, zlib and Minizip, the Roboto, Open Sans and Maven Pro fonts, Tabler Icons, and calibration data derived from the Lensfun database. It remains the property of its authors and is used under the licenses that follow.%1Names of film products are trademarks of their respective owners. They only describe the look that a simulation comes close to; their owners have no part in this product.%1</source>
        <translation>Dieses Produkt verwendet urheberrechtlich geschütztes Material anderer, darunter die Qt-Bibliotheken, log4cplus, zlib und Minizip, die Schriften Roboto, Open Sans und Maven Pro, Tabler Icons sowie Kalibrierungsdaten, die aus der Lensfun-Datenbank abgeleitet sind. Es bleibt Eigentum seiner Urheber und wird gemäß den folgenden Lizenzen verwendet.%1Namen von Filmprodukten sind Marken ihrer jeweiligen Inhaber. Sie beschreiben lediglich das Aussehen, dem eine Simulation nahekommt; die Inhaber sind an diesem Produkt nicht beteiligt.%1</translation>
    </message>
</context>
</TS>
