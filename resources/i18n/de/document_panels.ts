<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="document.command.preferences">
        <source>Pr&amp;eferences…</source>
        <extracomment>Menu item.</extracomment>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message id="document.command.help">
        <source>&amp;Curvegrab X Help</source>
        <extracomment>Menu item: the first page of the help.</extracomment>
        <translation>&amp;Hilfe zu Curvegrab X</translation>
    </message>
    <message id="document.command.axisHelp">
        <source>Help on &amp;Setting the Axes</source>
        <extracomment>Menu item.</extracomment>
        <translation>Hilfe zum &amp;Festlegen der Achsen</translation>
    </message>
    <message id="document.command.digitizeHelp">
        <source>Help on &amp;Digitizing</source>
        <extracomment>Menu item.</extracomment>
        <translation>Hilfe zum &amp;Digitalisieren</translation>
    </message>
</context>
</TS>
