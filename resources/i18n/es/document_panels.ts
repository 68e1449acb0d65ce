<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="document.command.preferences">
        <source>Preferences…</source>
        <extracomment>Menu item.</extracomment>
        <translation>Preferencias…</translation>
    </message>
    <message id="document.command.help">
        <source>Curvegrab X Help</source>
        <extracomment>Menu item: the first page of the help.</extracomment>
        <translation>Ayuda de Curvegrab X</translation>
    </message>
    <message id="document.command.axisHelp">
        <source>Help on Setting the Axes</source>
        <extracomment>Menu item.</extracomment>
        <translation>Ayuda sobre el ajuste de ejes</translation>
    </message>
    <message id="document.command.digitizeHelp">
        <source>Help on Digitizing</source>
        <extracomment>Menu item.</extracomment>
        <translation>Ayuda sobre la digitalización</translation>
    </message>
</context>
</TS>
