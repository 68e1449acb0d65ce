<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="AxisChanged">
        <source>The axes have changed</source>
        <extracomment>Title of the message shown when a point was taken under other axes than the current series.</extracomment>
        <translation>軸が変わりました</translation>
    </message>
    <message id="NextSeriesUsed">
        <source>The current series was begun with other axes, so the new point went into series %d, which was empty. Go on clicking there.</source>
        <extracomment>%d is the number of the series, counted from 1.</extracomment>
        <translation>現在の系列は別の軸で始められたため、新しい点は空いていた系列 %d に入れました。そのままクリックを続けられます。</translation>
    </message>
    <message id="SeriesIsFull">
        <source>The current series was begun with other axes, and no series is empty, so the point was not added. Save your data, then delete a series that you no longer need.</source>
        <extracomment>Shown when no series is left for a point.</extracomment>
        <translation>現在の系列は別の軸で始められており、空いている系列もないため、点を追加できませんでした。データを保存してから、不要になった系列を削除してください。</translation>
    </message>
    <message id="actionDataAppend">
        <source>Add Point</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>点の追加</translation>
    </message>
    <message id="actionDataDelete">
        <source>Delete Series Data</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>系列データの削除</translation>
    </message>
    <message id="SaveAllMessage">
        <source>Save all series</source>
        <extracomment>What the save panel says when all series are saved.</extracomment>
        <translation>すべての系列を保存</translation>
    </message>
    <message id="SaveSelectionMessage">
        <source>Save the selected series</source>
        <extracomment>What the save panel says when the series selected in the table are saved.</extracomment>
        <translation>選択した系列を保存</translation>
    </message>
    <message id="capture.export.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of the message after a failed save; %1 is the file's name.</extracomment>
        <translation>「%1」を保存できませんでした</translation>
    </message>
</context>
</TS>
