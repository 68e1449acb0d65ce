<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="document.command.examples">
        <source>&amp;Examples</source>
        <extracomment>The submenu of the Help menu with documents to try.</extracomment>
        <translation>示例(&amp;E)</translation>
    </message>
    <message id="document.example.linear">
        <source>&amp;Damped Oscillation: Linear Axes</source>
        <translation>阻尼振动：线性轴(&amp;D)</translation>
    </message>
    <message id="document.example.logarithmic">
        <source>&amp;Growth of a Culture: Logarithmic Axis</source>
        <translation>培养物的生长：对数轴(&amp;G)</translation>
    </message>
    <message id="document.example.quadrangle">
        <source>Chart at an &amp;Angle: Quadrangle Axes</source>
        <translation>倾斜的图表：四边形坐标轴(&amp;A)</translation>
    </message>
    <message id="document.example.polar">
        <source>&amp;Cardioid: Polar Axes</source>
        <translation>心形线：极坐标轴(&amp;C)</translation>
    </message>
    <message id="document.empty.example">
        <source>&amp;Try an Example…</source>
        <translation>试用示例(&amp;T)…</translation>
    </message>
    <message id="document.empty.example.tip">
        <source>Opens a copy of a chart that has been digitized already</source>
        <translation>打开一个已经数字化的图表的副本</translation>
    </message>
</context>
</TS>
