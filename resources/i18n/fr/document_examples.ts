<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="document.command.examples">
        <source>&amp;Examples</source>
        <extracomment>The submenu of the Help menu with documents to try.</extracomment>
        <translation>&amp;Exemples</translation>
    </message>
    <message id="document.example.linear">
        <source>&amp;Damped Oscillation: Linear Axes</source>
        <translation>&amp;Oscillation amortie : axes linéaires</translation>
    </message>
    <message id="document.example.logarithmic">
        <source>&amp;Growth of a Culture: Logarithmic Axis</source>
        <translation>C&amp;roissance d’une culture : axe logarithmique</translation>
    </message>
    <message id="document.example.quadrangle">
        <source>Chart at an &amp;Angle: Quadrangle Axes</source>
        <translation>&amp;Graphique de biais : axes en quadrilatère</translation>
    </message>
    <message id="document.example.polar">
        <source>&amp;Cardioid: Polar Axes</source>
        <translation>&amp;Cardioïde : axes polaires</translation>
    </message>
    <message id="document.empty.example">
        <source>&amp;Try an Example…</source>
        <translation>Essa&amp;yer un exemple…</translation>
    </message>
    <message id="document.empty.example.tip">
        <source>Opens a copy of a chart that has been digitized already</source>
        <translation>Ouvre une copie d’un graphique déjà numérisé</translation>
    </message>
</context>
</TS>
