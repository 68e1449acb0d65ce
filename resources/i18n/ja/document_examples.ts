<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="document.command.examples">
        <source>&amp;Examples</source>
        <extracomment>The submenu of the Help menu with documents to try.</extracomment>
        <translation>サンプル(&amp;E)</translation>
    </message>
    <message id="document.example.linear">
        <source>&amp;Damped Oscillation: Linear Axes</source>
        <translation>減衰振動: 線形軸(&amp;D)</translation>
    </message>
    <message id="document.example.logarithmic">
        <source>&amp;Growth of a Culture: Logarithmic Axis</source>
        <translation>培養の増殖: 対数軸(&amp;G)</translation>
    </message>
    <message id="document.example.quadrangle">
        <source>Chart at an &amp;Angle: Quadrangle Axes</source>
        <translation>斜めのグラフ: 四角形軸(&amp;A)</translation>
    </message>
    <message id="document.example.polar">
        <source>&amp;Cardioid: Polar Axes</source>
        <translation>カージオイド: 極座標軸(&amp;C)</translation>
    </message>
    <message id="document.empty.example">
        <source>&amp;Try an Example…</source>
        <translation>サンプルを試す(&amp;T)…</translation>
    </message>
    <message id="document.empty.example.tip">
        <source>Opens a copy of a chart that has been digitized already</source>
        <translation>数値化済みのグラフのコピーを開きます</translation>
    </message>
</context>
</TS>
