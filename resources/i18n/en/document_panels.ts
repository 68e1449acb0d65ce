<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="document.command.preferences">
        <source>Pr&amp;eferences…</source>
        <extracomment>Menu item.</extracomment>
        <translation>Pr&amp;eferences…</translation>
    </message>
    <message id="document.command.help">
        <source>&amp;Curvegrab X Help</source>
        <extracomment>Menu item: the first page of the help.</extracomment>
        <translation>&amp;Curvegrab X Help</translation>
    </message>
    <message id="document.command.axisHelp">
        <source>Help on &amp;Setting the Axes</source>
        <extracomment>Menu item.</extracomment>
        <translation>Help on &amp;Setting the Axes</translation>
    </message>
    <message id="document.command.digitizeHelp">
        <source>Help on &amp;Digitizing</source>
        <extracomment>Menu item.</extracomment>
        <translation>Help on &amp;Digitizing</translation>
    </message>
</context>
</TS>
