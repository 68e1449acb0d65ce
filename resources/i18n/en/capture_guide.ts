<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="LockXValue">
        <source>Lock &amp;X Value</source>
        <extracomment>Menu command: every new point takes the X value of the field.</extracomment>
        <translation>Lock &amp;X Value</translation>
    </message>
    <message id="UnlockXValue">
        <source>Unlock &amp;X Value</source>
        <extracomment>Menu command: X follows the cursor again.</extracomment>
        <translation>Unlock &amp;X Value</translation>
    </message>
    <message id="LockTValue">
        <source>L&amp;ock θ Value</source>
        <extracomment>Menu command with polar axes: every new point takes the angle of the field.</extracomment>
        <translation>L&amp;ock θ Value</translation>
    </message>
    <message id="UnlockTValue">
        <source>Unl&amp;ock θ Value</source>
        <extracomment>Menu command with polar axes: the angle follows the cursor again.</extracomment>
        <translation>Unl&amp;ock θ Value</translation>
    </message>
    <message id="LockYValue">
        <source>Lock &amp;Y Value</source>
        <extracomment>Menu command: every new point takes the Y value of the field.</extracomment>
        <translation>Lock &amp;Y Value</translation>
    </message>
    <message id="UnlockYValue">
        <source>Unlock &amp;Y Value</source>
        <extracomment>Menu command: Y follows the cursor again.</extracomment>
        <translation>Unlock &amp;Y Value</translation>
    </message>
    <message id="LockRValue">
        <source>Lock &amp;R Value</source>
        <extracomment>Menu command with polar axes: every new point takes the radius of the field.</extracomment>
        <translation>Lock &amp;R Value</translation>
    </message>
    <message id="UnlockRValue">
        <source>Unlock &amp;R Value</source>
        <extracomment>Menu command with polar axes: the radius follows the cursor again.</extracomment>
        <translation>Unlock &amp;R Value</translation>
    </message>
    <message id="capture.preview.name">
        <source>Marker preview</source>
        <extracomment>What a screen reader says for the small picture of a marker.</extracomment>
        <translation>Marker preview</translation>
    </message>
    <message id="capture.preview.tip">
        <source>How the points of the current series are drawn</source>
        <extracomment>Tooltip of the small picture of a marker.</extracomment>
        <translation>How the points of the current series are drawn</translation>
    </message>
    <message id="capture.table.name">
        <source>Data table</source>
        <extracomment>What a screen reader says for the table of captured points.</extracomment>
        <translation>Data table</translation>
    </message>
    <message id="capture.table.column">
        <source>Series %d</source>
        <extracomment>What a screen reader says for a column title; %d is the number of the series.</extracomment>
        <translation>Series %d</translation>
    </message>
    <message id="capture.table.columnTip">
        <source>Series %d: click to select it, Shift-click to select up to here, Ctrl-click to add it</source>
        <extracomment>Tooltip of a column title; %d is the number of the series.</extracomment>
        <translation>Series %d: click to select it, Shift-click to select up to here, Ctrl-click to add it</translation>
    </message>
    <message id="capture.table.selectAllTip">
        <source>Select all series that hold points</source>
        <extracomment>Tooltip of the corner button of the table.</extracomment>
        <translation>Select all series that hold points</translation>
    </message>
    <message id="capture.table.nothingSelected">
        <source>No series is selected.</source>
        <extracomment>What a screen reader says for the table's selection.</extracomment>
        <translation>No series is selected.</translation>
    </message>
    <message id="capture.table.selectedSeries">
        <source>Selected series:</source>
        <extracomment>What a screen reader says for the table's selection; the numbers of the series follow.</extracomment>
        <translation>Selected series:</translation>
    </message>
    <message id="capture.table.empty">
        <source>Click on the picture to capture points. They appear here, one column per series.</source>
        <extracomment>Shown in the table while there are no points.</extracomment>
        <translation>Click on the picture to capture points. They appear here, one column per series.</translation>
    </message>
</context>
</TS>
