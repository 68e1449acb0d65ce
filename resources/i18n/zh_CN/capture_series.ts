<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="AxisChanged">
        <source>The axes have changed</source>
        <extracomment>Title of the message shown when a point was taken under other axes than the current series.</extracomment>
        <translation>坐标轴已更改</translation>
    </message>
    <message id="NextSeriesUsed">
        <source>The current series was begun with other axes, so the new point went into series %d, which was empty. Go on clicking there.</source>
        <extracomment>%d is the number of the series, counted from 1.</extracomment>
        <translation>当前系列是用其他坐标轴开始的，因此新点已放入空的系列 %d。请在那里继续单击。</translation>
    </message>
    <message id="SeriesIsFull">
        <source>The current series was begun with other axes, and no series is empty, so the point was not added. Save your data, then delete a series that you no longer need.</source>
        <extracomment>Shown when no series is left for a point.</extracomment>
        <translation>当前系列是用其他坐标轴开始的，而且没有空的系列，因此未添加该点。请保存数据，然后删除不再需要的系列。</translation>
    </message>
    <message id="actionDataAppend">
        <source>Add Point</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>添加点</translation>
    </message>
    <message id="actionDataDelete">
        <source>Delete Series Data</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>删除系列数据</translation>
    </message>
    <message id="SaveAllMessage">
        <source>Save all series</source>
        <extracomment>What the save panel says when all series are saved.</extracomment>
        <translation>保存所有系列</translation>
    </message>
    <message id="SaveSelectionMessage">
        <source>Save the selected series</source>
        <extracomment>What the save panel says when the series selected in the table are saved.</extracomment>
        <translation>保存选中的系列</translation>
    </message>
    <message id="capture.export.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of the message after a failed save; %1 is the file's name.</extracomment>
        <translation>无法保存“%1”</translation>
    </message>
</context>
</TS>
