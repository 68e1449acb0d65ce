<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="document.command.examples">
        <source>&amp;Examples</source>
        <extracomment>The submenu of the Help menu with documents to try.</extracomment>
        <translation>&amp;Ejemplos</translation>
    </message>
    <message id="document.example.linear">
        <source>Damped Oscillation: Linear Axes</source>
        <translation>Oscilación amortiguada: ejes lineales</translation>
    </message>
    <message id="document.example.logarithmic">
        <source>Growth of a Culture: Logarithmic Axis</source>
        <translation>Crecimiento de un cultivo: eje logarítmico</translation>
    </message>
    <message id="document.example.quadrangle">
        <source>Chart at an Angle: Quadrangle Axes</source>
        <translation>Gráfico en ángulo: ejes en cuadrilátero</translation>
    </message>
    <message id="document.example.polar">
        <source>Cardioid: Polar Axes</source>
        <translation>Cardioide: ejes polares</translation>
    </message>
    <message id="document.empty.example">
        <source>&amp;Try an Example…</source>
        <translation>&amp;Probar un ejemplo…</translation>
    </message>
    <message id="document.empty.example.tip">
        <source>Opens a copy of a chart that has been digitized already</source>
        <translation>Abre una copia de un gráfico ya digitalizado</translation>
    </message>
</context>
</TS>
