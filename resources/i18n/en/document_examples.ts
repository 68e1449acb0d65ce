<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="document.command.examples">
        <source>&amp;Examples</source>
        <extracomment>The submenu of the Help menu with documents to try.</extracomment>
        <translation>&amp;Examples</translation>
    </message>
    <message id="document.example.linear">
        <source>&amp;Damped Oscillation: Linear Axes</source>
        <translation>&amp;Damped Oscillation: Linear Axes</translation>
    </message>
    <message id="document.example.logarithmic">
        <source>&amp;Growth of a Culture: Logarithmic Axis</source>
        <translation>&amp;Growth of a Culture: Logarithmic Axis</translation>
    </message>
    <message id="document.example.quadrangle">
        <source>Chart at an &amp;Angle: Quadrangle Axes</source>
        <translation>Chart at an &amp;Angle: Quadrangle Axes</translation>
    </message>
    <message id="document.example.polar">
        <source>&amp;Cardioid: Polar Axes</source>
        <translation>&amp;Cardioid: Polar Axes</translation>
    </message>
    <message id="document.empty.example">
        <source>&amp;Try an Example…</source>
        <translation>&amp;Try an Example…</translation>
    </message>
    <message id="document.empty.example.tip">
        <source>Opens a copy of a chart that has been digitized already</source>
        <translation>Opens a copy of a chart that has been digitized already</translation>
    </message>
</context>
</TS>
