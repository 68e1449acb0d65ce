<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="document.command.preferences">
        <source>Preferences…</source>
        <extracomment>Menu item.</extracomment>
        <translation>首选项…</translation>
    </message>
    <message id="document.command.help">
        <source>Curvegrab X Help</source>
        <extracomment>Menu item: the first page of the help.</extracomment>
        <translation>Curvegrab X 帮助</translation>
    </message>
    <message id="document.command.axisHelp">
        <source>Help on Setting the Axes</source>
        <extracomment>Menu item.</extracomment>
        <translation>坐标轴设置帮助</translation>
    </message>
    <message id="document.command.digitizeHelp">
        <source>Help on Digitizing</source>
        <extracomment>Menu item.</extracomment>
        <translation>数字化帮助</translation>
    </message>
</context>
</TS>
