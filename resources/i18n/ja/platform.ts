<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="OK">
        <source>OK</source>
        <extracomment>The button that closes a message.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <extracomment>The button that gives up a question without doing anything.</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message id="platform.files.pictures">
        <source>Pictures</source>
        <extracomment>Kind of file in the open panel.</extracomment>
        <translation>画像</translation>
    </message>
    <message id="platform.files.all">
        <source>All files</source>
        <extracomment>Kind of file in the open panel.</extracomment>
        <translation>すべてのファイル</translation>
    </message>
    <message id="platform.files.openPicture">
        <source>Open Picture</source>
        <extracomment>Title of the panel that asks for a picture file.</extracomment>
        <translation>画像を開く</translation>
    </message>
    <message id="platform.files.overwrite">
        <source>“%1” already exists. Replace it?</source>
        <extracomment>Question before a file is overwritten; %1 is its name.</extracomment>
        <translation>「%1」はすでにあります。置き換えますか？</translation>
    </message>
    <message id="platform.files.overwriteHint">
        <source>Replacing it overwrites what it holds now. Cancel to choose another name.</source>
        <extracomment>Explanation of the question before a file is overwritten.</extracomment>
        <translation>置き換えると現在の内容は失われます。別の名前にするにはキャンセルしてください。</translation>
    </message>
    <message id="platform.files.replace">
        <source>Replace</source>
        <extracomment>The button that overwrites a file.</extracomment>
        <translation>置き換える</translation>
    </message>
    <message id="platform.password.field">
        <source>&amp;Password:</source>
        <extracomment>Label of the field into which the password of a file is typed.</extracomment>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message id="platform.password.open">
        <source>&amp;Open</source>
        <extracomment>The button that opens the locked file.</extracomment>
        <translation>開く(&amp;O)</translation>
    </message>
    <message id="platform.files.saveDocument">
        <source>Save the document</source>
        <translation>ドキュメントを保存</translation>
    </message>
    <message id="platform.files.openFiles">
        <source>Open documents and pictures</source>
        <translation>ドキュメントと画像を開く</translation>
    </message>
    <message id="platform.files.documents">
        <source>Curvegrab X documents</source>
        <translation>Curvegrab X ドキュメント</translation>
    </message>
    <message id="platform.files.documentsAndPictures">
        <source>Documents and pictures</source>
        <translation>ドキュメントと画像</translation>
    </message>
    <message id="platform.file.diskFull">
        <source>The disk is full. Make room on it, or save to another one.</source>
        <translation>ディスクがいっぱいです。空きを作るか、別のディスクに保存してください。</translation>
    </message>
    <message id="platform.file.tooLarge">
        <source>The file would be larger than this disk allows. Save it to another one.</source>
        <translation>ファイルがこのディスクで扱える大きさを超えます。別のディスクに保存してください。</translation>
    </message>
    <message id="platform.file.folderGone">
        <source>The folder is not there any more. Connect its disk again, or save to another folder.</source>
        <translation>フォルダーがなくなっています。ディスクを接続し直すか、別のフォルダーに保存してください。</translation>
    </message>
    <message id="platform.file.isFolder">
        <source>There is a folder of that name. Choose another name.</source>
        <translation>同じ名前のフォルダーがあります。別の名前を選んでください。</translation>
    </message>
    <message id="platform.file.readOnly">
        <source>The file is protected from changes. Save under another name, or allow changes to it.</source>
        <translation>ファイルは変更できないように保護されています。別の名前で保存するか、変更を許可してください。</translation>
    </message>
    <message id="platform.file.folderReadOnly">
        <source>You may not write into this folder. Save to another one.</source>
        <translation>このフォルダーには書き込めません。別のフォルダーに保存してください。</translation>
    </message>
</context>
</TS>
