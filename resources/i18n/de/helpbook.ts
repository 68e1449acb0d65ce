<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="help.title">
        <source>Curvegrab X Help</source>
        <extracomment>Title of the help window.</extracomment>
        <translation>Hilfe zu Curvegrab X</translation>
    </message>
    <message id="help.contents">
        <source>Contents</source>
        <extracomment>Accessible name of the list of the help's pages.</extracomment>
        <translation>Inhalt</translation>
    </message>
    <message id="help.page">
        <source>Page</source>
        <extracomment>Accessible name of the text of a help page.</extracomment>
        <translation>Seite</translation>
    </message>
    <message id="help.toolbar">
        <source>Navigation</source>
        <extracomment>Name of the help window's tool bar.</extracomment>
        <translation>Navigation</translation>
    </message>
    <message id="help.back">
        <source>Back</source>
        <extracomment>Button of the help window.</extracomment>
        <translation>Zurück</translation>
    </message>
    <message id="help.back.tip">
        <source>Back to the page before (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Zurück zur vorigen Seite (%1)</translation>
    </message>
    <message id="help.forward">
        <source>Forward</source>
        <extracomment>Button of the help window.</extracomment>
        <translation>Vor</translation>
    </message>
    <message id="help.forward.tip">
        <source>Forward again (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Wieder vor (%1)</translation>
    </message>
    <message id="help.find">
        <source>Find…</source>
        <extracomment>Button of the help window that opens the search bar.</extracomment>
        <translation>Suchen…</translation>
    </message>
    <message id="help.find.tip">
        <source>Find words on this page (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Auf dieser Seite nach Wörtern suchen (%1)</translation>
    </message>
    <message id="help.smaller">
        <source>A−</source>
        <extracomment>Button of the help window: smaller text.</extracomment>
        <translation>A−</translation>
    </message>
    <message id="help.smaller.tip">
        <source>Smaller text (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Kleinerer Text (%1)</translation>
    </message>
    <message id="help.normal">
        <source>A</source>
        <extracomment>Button of the help window: text of normal size.</extracomment>
        <translation>A</translation>
    </message>
    <message id="help.normal.tip">
        <source>Normal text (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Normaler Text (%1)</translation>
    </message>
    <message id="help.larger">
        <source>A+</source>
        <extracomment>Button of the help window: larger text.</extracomment>
        <translation>A+</translation>
    </message>
    <message id="help.larger.tip">
        <source>Larger text (%1)</source>
        <extracomment>%1 is the shortcut.</extracomment>
        <translation>Größerer Text (%1)</translation>
    </message>
    <message id="help.find.caption">
        <source>&amp;Find:</source>
        <extracomment>Caption of the search field.</extracomment>
        <translation>&amp;Suchen:</translation>
    </message>
    <message id="help.find.accessible">
        <source>Find on this page</source>
        <extracomment>Accessible name of the search field.</extracomment>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message id="help.find.previous">
        <source>Previous match (Shift+F3)</source>
        <extracomment>Button of the search bar.</extracomment>
        <translation>Vorige Fundstelle (Umschalt+F3)</translation>
    </message>
    <message id="help.find.next">
        <source>Next match (F3)</source>
        <extracomment>Button of the search bar.</extracomment>
        <translation>Nächste Fundstelle (F3)</translation>
    </message>
    <message id="help.find.none">
        <source>Not on this page</source>
        <extracomment>Result of a search.</extracomment>
        <translation>Nicht auf dieser Seite</translation>
    </message>
    <message id="help.find.match">
        <source>%d match</source>
        <extracomment>Result of a search: one.</extracomment>
        <translation>%d Fundstelle</translation>
    </message>
    <message id="help.find.matches">
        <source>%d matches</source>
        <extracomment>Result of a search: two or more.</extracomment>
        <translation>%d Fundstellen</translation>
    </message>
</context>
</TS>
