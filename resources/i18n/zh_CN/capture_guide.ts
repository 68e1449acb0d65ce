<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="LockXValue">
        <source>Lock &amp;X Value</source>
        <extracomment>Menu command: every new point takes the X value of the field.</extracomment>
        <translation>锁定 X 值(&amp;X)</translation>
    </message>
    <message id="UnlockXValue">
        <source>Unlock &amp;X Value</source>
        <extracomment>Menu command: X follows the cursor again.</extracomment>
        <translation>解锁 X 值(&amp;X)</translation>
    </message>
    <message id="LockTValue">
        <source>L&amp;ock θ Value</source>
        <extracomment>Menu command with polar axes: every new point takes the angle of the field.</extracomment>
        <translation>锁定 θ 值(&amp;T)</translation>
    </message>
    <message id="UnlockTValue">
        <source>Unl&amp;ock θ Value</source>
        <extracomment>Menu command with polar axes: the angle follows the cursor again.</extracomment>
        <translation>解锁 θ 值(&amp;T)</translation>
    </message>
    <message id="LockYValue">
        <source>Lock &amp;Y Value</source>
        <extracomment>Menu command: every new point takes the Y value of the field.</extracomment>
        <translation>锁定 Y 值(&amp;Y)</translation>
    </message>
    <message id="UnlockYValue">
        <source>Unlock &amp;Y Value</source>
        <extracomment>Menu command: Y follows the cursor again.</extracomment>
        <translation>解锁 Y 值(&amp;Y)</translation>
    </message>
    <message id="LockRValue">
        <source>Lock &amp;R Value</source>
        <extracomment>Menu command with polar axes: every new point takes the radius of the field.</extracomment>
        <translation>锁定 R 值(&amp;R)</translation>
    </message>
    <message id="UnlockRValue">
        <source>Unlock &amp;R Value</source>
        <extracomment>Menu command with polar axes: the radius follows the cursor again.</extracomment>
        <translation>解锁 R 值(&amp;R)</translation>
    </message>
    <message id="capture.preview.name">
        <source>Marker preview</source>
        <extracomment>What a screen reader says for the small picture of a marker.</extracomment>
        <translation>标记预览</translation>
    </message>
    <message id="capture.preview.tip">
        <source>How the points of the current series are drawn</source>
        <extracomment>Tooltip of the small picture of a marker.</extracomment>
        <translation>当前系列的点的绘制方式</translation>
    </message>
    <message id="capture.table.name">
        <source>Data table</source>
        <extracomment>What a screen reader says for the table of captured points.</extracomment>
        <translation>数据表</translation>
    </message>
    <message id="capture.table.column">
        <source>Series %d</source>
        <extracomment>What a screen reader says for a column title; %d is the number of the series.</extracomment>
        <translation>系列 %d</translation>
    </message>
    <message id="capture.table.columnTip">
        <source>Series %d: click to select it, Shift-click to select up to here, Ctrl-click to add it</source>
        <extracomment>Tooltip of a column title; %d is the number of the series.</extracomment>
        <translation>系列 %d：单击选中，按住 Shift 单击可选到此处，按住 Ctrl 单击可加选</translation>
    </message>
    <message id="capture.table.selectAllTip">
        <source>Select all series that hold points</source>
        <extracomment>Tooltip of the corner button of the table.</extracomment>
        <translation>选中所有含有点的系列</translation>
    </message>
    <message id="capture.table.nothingSelected">
        <source>No series is selected.</source>
        <extracomment>What a screen reader says for the table's selection.</extracomment>
        <translation>未选中任何系列。</translation>
    </message>
    <message id="capture.table.selectedSeries">
        <source>Selected series:</source>
        <extracomment>What a screen reader says for the table's selection; the numbers of the series follow.</extracomment>
        <translation>选中的系列：</translation>
    </message>
    <message id="capture.table.empty">
        <source>Click on the picture to capture points. They appear here, one column per series.</source>
        <extracomment>Shown in the table while there are no points.</extracomment>
        <translation>在图片上单击即可采集点。点会显示在这里，每个系列一列。</translation>
    </message>
</context>
</TS>
