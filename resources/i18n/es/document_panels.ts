<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="document.command.preferences">
        <source>Pr&amp;eferences…</source>
        <extracomment>Menu item.</extracomment>
        <translation>Pre&amp;ferencias…</translation>
    </message>
    <message id="document.command.help">
        <source>&amp;Curvegrab X Help</source>
        <extracomment>Menu item: the first page of the help.</extracomment>
        <translation>Ay&amp;uda de Curvegrab X</translation>
    </message>
    <message id="document.command.axisHelp">
        <source>Help on &amp;Setting the Axes</source>
        <extracomment>Menu item.</extracomment>
        <translation>Ayuda sobre el ajuste de e&amp;jes</translation>
    </message>
    <message id="document.command.digitizeHelp">
        <source>Help on &amp;Digitizing</source>
        <extracomment>Menu item.</extracomment>
        <translation>Ayuda sobre la &amp;digitalización</translation>
    </message>
</context>
</TS>
