<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="document.command.preferences">
        <source>Pr&amp;eferences…</source>
        <extracomment>Menu item.</extracomment>
        <translation>&amp;Préférences…</translation>
    </message>
    <message id="document.command.help">
        <source>&amp;Curvegrab X Help</source>
        <extracomment>Menu item: the first page of the help.</extracomment>
        <translation>&amp;Aide de Curvegrab X</translation>
    </message>
    <message id="document.command.axisHelp">
        <source>Help on &amp;Setting the Axes</source>
        <extracomment>Menu item.</extracomment>
        <translation>Aide sur le &amp;réglage des axes</translation>
    </message>
    <message id="document.command.digitizeHelp">
        <source>Help on &amp;Digitizing</source>
        <extracomment>Menu item.</extracomment>
        <translation>Aide sur la &amp;numérisation</translation>
    </message>
</context>
</TS>
