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
        <source>Save all series as tab-separated text</source>
        <extracomment>What the save panel says when all series are saved.</extracomment>
        <translation>すべての系列をタブ区切りテキストとして保存</translation>
    </message>
    <message id="SaveSelectionMessage">
        <source>Save the selected series as tab-separated text</source>
        <extracomment>What the save panel says when the series selected in the table are saved.</extracomment>
        <translation>選択した系列をタブ区切りテキストとして保存</translation>
    </message>
    <message id="capture.export.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of the message after a failed save; %1 is the file's name.</extracomment>
        <translation>「%1」を保存できませんでした</translation>
    </message>
    <message id="capture.export.no-folder">
        <source>The folder “%1” does not exist any more. Choose another folder.</source>
        <extracomment>Why a file was not saved; %1 is the folder's name.</extracomment>
        <translation>フォルダー「%1」はもうありません。別のフォルダーを選んでください。</translation>
    </message>
    <message id="capture.export.is-folder">
        <source>There is a folder of this name. Choose another name.</source>
        <extracomment>Why a file was not saved.</extracomment>
        <translation>同じ名前のフォルダーがあります。別の名前を選んでください。</translation>
    </message>
    <message id="capture.export.not-allowed">
        <source>You are not allowed to write there. Choose another folder.</source>
        <extracomment>Why a file was not saved.</extracomment>
        <translation>その場所に書き込む権限がありません。別のフォルダーを選んでください。</translation>
    </message>
    <message id="capture.export.not-written">
        <source>The disk may be full or no longer connected. Make room or choose another folder, then save again.</source>
        <extracomment>Why a file was not saved, when the reason is not known exactly.</extracomment>
        <translation>ディスクがいっぱいか、接続が切れている可能性があります。空きを作るか別のフォルダーを選んで、もう一度保存してください。</translation>
    </message>
</context>
</TS>
