<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="document.command.examples">
        <source>&amp;Examples</source>
        <extracomment>The submenu of the Help menu with documents to try.</extracomment>
        <translation>Bei&amp;spiele</translation>
    </message>
    <message id="document.example.linear">
        <source>&amp;Damped Oscillation: Linear Axes</source>
        <translation>&amp;Gedämpfte Schwingung: lineare Achsen</translation>
    </message>
    <message id="document.example.logarithmic">
        <source>&amp;Growth of a Culture: Logarithmic Axis</source>
        <translation>&amp;Wachstum einer Kultur: logarithmische Achse</translation>
    </message>
    <message id="document.example.quadrangle">
        <source>Chart at an &amp;Angle: Quadrangle Axes</source>
        <translation>&amp;Schräges Diagramm: viereckige Achsen</translation>
    </message>
    <message id="document.example.polar">
        <source>&amp;Cardioid: Polar Axes</source>
        <translation>&amp;Kardioide: polare Achsen</translation>
    </message>
    <message id="document.empty.example">
        <source>&amp;Try an Example…</source>
        <translation>Beispiel aus&amp;probieren…</translation>
    </message>
    <message id="document.empty.example.tip">
        <source>Opens a copy of a chart that has been digitized already</source>
        <translation>Öffnet eine Kopie eines Diagramms, das schon digitalisiert ist</translation>
    </message>
</context>
</TS>
