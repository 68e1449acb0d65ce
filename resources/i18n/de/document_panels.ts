<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="document.command.preferences">
        <source>Preferences…</source>
        <extracomment>Menu item.</extracomment>
        <translation>Einstellungen…</translation>
    </message>
    <message id="document.command.help">
        <source>Curvegrab X Help</source>
        <extracomment>Menu item: the first page of the help.</extracomment>
        <translation>Hilfe zu Curvegrab X</translation>
    </message>
    <message id="document.command.axisHelp">
        <source>Help on Setting the Axes</source>
        <extracomment>Menu item.</extracomment>
        <translation>Hilfe zum Festlegen der Achsen</translation>
    </message>
    <message id="document.command.digitizeHelp">
        <source>Help on Digitizing</source>
        <extracomment>Menu item.</extracomment>
        <translation>Hilfe zum Digitalisieren</translation>
    </message>
</context>
</TS>
