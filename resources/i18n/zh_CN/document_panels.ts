<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="document.command.preferences">
        <source>Pr&amp;eferences…</source>
        <extracomment>Menu item.</extracomment>
        <translation>首选项(&amp;E)…</translation>
    </message>
    <message id="document.command.help">
        <source>&amp;Curvegrab X Help</source>
        <extracomment>Menu item: the first page of the help.</extracomment>
        <translation>Curvegrab X 帮助(&amp;C)</translation>
    </message>
    <message id="document.command.axisHelp">
        <source>Help on &amp;Setting the Axes</source>
        <extracomment>Menu item.</extracomment>
        <translation>坐标轴设置帮助(&amp;S)</translation>
    </message>
    <message id="document.command.digitizeHelp">
        <source>Help on &amp;Digitizing</source>
        <extracomment>Menu item.</extracomment>
        <translation>数字化帮助(&amp;D)</translation>
    </message>
</context>
</TS>
