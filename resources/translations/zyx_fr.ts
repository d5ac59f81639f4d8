<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT -->
<!-- Copyright (c) 2026 the UtilsDllzglv6 authors -->
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>CLanguageManager</name>
    <message>
        <source>language name</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1036</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Faire pivoter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>Quitter sans enregistrer</translation>
    </message>
    <message>
        <source>Don&apos;t quit</source>
        <translation>Ne pas quitter</translation>
    </message>
</context>
<context>
    <name>ProgressPainter</name>
    <message>
        <source>Processing</source>
        <translation>Traitement en cours</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Windows small space message on drive %1</source>
        <translation>Zyx Grainlab ne peut pas démarrer car l’espace libre sur le disque %1 est insuffisant.
Veuillez supprimer les fichiers inutiles de ce disque, puis réessayer.</translation>
    </message>
    <message>
        <source>Out of memory. Program will be closed.</source>
        <translation>Mémoire insuffisante. Le programme va être fermé.</translation>
    </message>
    <message>
        <source>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</source>
        <translation>%1 ne dispose plus de mémoire suffisante. L’application risque de devenir instable. Veuillez fermer %2 et Photoshop, quitter tous les autres programmes en cours d’exécution, puis réessayer.</translation>
    </message>
    <message>
        <source>Unhandled exception. Program will be closed.</source>
        <translation>Exception non gérée. Le programme va être fermé.</translation>
    </message>
    <message>
        <source>Sorry, but this file type is not supported. Please, try again.</source>
        <translation>Désolé, ce type de fichier n’est pas pris en charge. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>in</source>
        <translation>po</translation>
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
        <translation>o</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>Ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
</context>
<context>
    <name>aboutDlg</name>
    <message>
        <source>About Zyx Grainlab</source>
        <translation>À propos de Zyx Grainlab</translation>
    </message>
    <message>
        <source>The look of real film.</source>
        <translation>Le vrai rendu de la pellicule.</translation>
    </message>
    <message>
        <source>%1 is a trademark of Zyx Labs. This software is protected&lt;br&gt;by copyright law and by international treaties.&lt;br&gt;Parts of it may be covered by patents: see &lt;a href="%2"&gt;patents and notices&lt;/a&gt;.&lt;br&gt;&lt;br&gt;&lt;a href="%1"&gt;Read the licenses of the third-party software in this product.&lt;/a&gt;</source>
        <translation>%1 est une marque de Zyx Labs. Ce logiciel est protégé par le droit&lt;br&gt;d’auteur et par des traités internationaux. Certaines parties peuvent être&lt;br&gt;couvertes par des brevets : voir &lt;a href="%2"&gt;Brevets et mentions légales&lt;/a&gt;.&lt;br&gt;&lt;br&gt;&lt;a href="%1"&gt;Consultez les licences des logiciels tiers présents dans ce produit.&lt;/a&gt;</translation>
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
        <translation>64 bits</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>This product uses copyrighted material of others, among it the Qt libraries, log4cplus, zlib and Minizip, the Roboto, Open Sans and Maven Pro fonts, Tabler Icons, and calibration data derived from the Lensfun database. It remains the property of its authors and is used under the licenses that follow.%1Names of film products are trademarks of their respective owners. They only describe the look that a simulation comes close to; their owners have no part in this product.%1</source>
        <translation>Ce produit utilise des éléments protégés par le droit d’auteur appartenant à des tiers, notamment les bibliothèques Qt, log4cplus, zlib et Minizip, les polices Roboto, Open Sans et Maven Pro, Tabler Icons ainsi que des données d’étalonnage dérivées de la base de données Lensfun. Ils restent la propriété de leurs auteurs et sont utilisés selon les licences reproduites ci-dessous.%1Les noms de produits argentiques sont des marques de leurs propriétaires respectifs. Ils servent uniquement à décrire le rendu dont une simulation s’approche ; leurs propriétaires n’ont aucune part à ce produit.%1</translation>
    </message>
</context>
</TS>
