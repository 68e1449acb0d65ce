<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="help.title">
        <source>Curvegrab X Help</source>
        <extracomment>Title of the help window.</extracomment>
        <translation>Aide de Curvegrab X</translation>
    </message>
    <message id="help.contents">
        <source>Contents</source>
        <extracomment>Accessible name of the list of the help's pages.</extracomment>
        <translation>Sommaire</translation>
    </message>
    <message id="help.page">
        <source>Page</source>
        <extracomment>Accessible name of the text of a help page.</extracomment>
        <translation>Page</translation>
    </message>
    <message id="help.toolbar">
        <source>Navigation</source>
        <extracomment>Name of the help window's tool bar.</extracomment>
        <translation>Navigation</translation>
    </message>
    <message id="help.back">
        <source>Back</source>
        <extracomment>Button of the help window.</extracomment>
        <translation>Précédent</translation>
    </message>
    <message id="help.back.tip">
        <source>Back to the page before (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Revenir à la page précédente (%1)</translation>
    </message>
    <message id="help.forward">
        <source>Forward</source>
        <extracomment>Button of the help window.</extracomment>
        <translation>Suivant</translation>
    </message>
    <message id="help.forward.tip">
        <source>Forward again (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Avancer à nouveau (%1)</translation>
    </message>
    <message id="help.find">
        <source>Find…</source>
        <extracomment>Button of the help window that opens the search bar.</extracomment>
        <translation>Rechercher…</translation>
    </message>
    <message id="help.find.tip">
        <source>Find words on this page (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Rechercher des mots dans cette page (%1)</translation>
    </message>
    <message id="help.smaller">
        <source>A−</source>
        <extracomment>Button of the help window: smaller text.</extracomment>
        <translation>A−</translation>
    </message>
    <message id="help.smaller.tip">
        <source>Smaller text (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Texte plus petit (%1)</translation>
    </message>
    <message id="help.normal">
        <source>A</source>
        <extracomment>Button of the help window: text of normal size.</extracomment>
        <translation>A</translation>
    </message>
    <message id="help.normal.tip">
        <source>Normal text (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Texte normal (%1)</translation>
    </message>
    <message id="help.larger">
        <source>A+</source>
        <extracomment>Button of the help window: larger text.</extracomment>
        <translation>A+</translation>
    </message>
    <message id="help.larger.tip">
        <source>Larger text (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Texte plus grand (%1)</translation>
    </message>
    <message id="help.find.caption">
        <source>&amp;Find:</source>
        <extracomment>Caption of the search field.</extracomment>
        <translation>&amp;Rechercher :</translation>
    </message>
    <message id="help.find.accessible">
        <source>Find on this page</source>
        <extracomment>Accessible name of the search field.</extracomment>
        <translation>Rechercher dans cette page</translation>
    </message>
    <message id="help.find.previous">
        <source>Previous match (Shift+F3)</source>
        <extracomment>Button of the search bar.</extracomment>
        <translation>Occurrence précédente (Maj+F3)</translation>
    </message>
    <message id="help.find.next">
        <source>Next match (F3)</source>
        <extracomment>Button of the search bar.</extracomment>
        <translation>Occurrence suivante (F3)</translation>
    </message>
    <message id="help.find.none">
        <source>Not on this page</source>
        <extracomment>Result of a search.</extracomment>
        <translation>Absent de cette page</translation>
    </message>
    <message id="help.find.match">
        <source>%d match</source>
        <extracomment>Result of a search: one.</extracomment>
        <translation>%d occurrence</translation>
    </message>
    <message id="help.find.matches">
        <source>%d matches</source>
        <extracomment>Result of a search: two or more.</extracomment>
        <translation>%d occurrences</translation>
    </message>
</context>
</TS>
