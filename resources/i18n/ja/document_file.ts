<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="document.damage.noDocument">
        <source>This is not a Curvegrab X document.</source>
        <translation>これは Curvegrab X のドキュメントではありません。</translation>
    </message>
    <message id="document.damage.endsEarly">
        <source>The file ends too early: something is missing at its end.</source>
        <translation>ファイルが途中で終わっています。末尾が欠けています。</translation>
    </message>
    <message id="document.damage.tooLarge">
        <source>Something in the file (%1) is far larger than any document has it.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>ファイルの中の一部 (%1) が、通常のドキュメントではあり得ない大きさです。</translation>
    </message>
    <message id="document.damage.repeatedKey">
        <source>Something in the file (%1) is there twice.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>ファイルの中の一部 (%1) が二重になっています。</translation>
    </message>
    <message id="document.damage.badValue">
        <source>Something in the file (%1) is damaged.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>ファイルの中の一部 (%1) が壊れています。</translation>
    </message>
    <message id="document.damage.trailing">
        <source>Something that does not belong to the document follows its end.</source>
        <translation>ドキュメントの終わりの後に、無関係な内容が続いています。</translation>
    </message>
    <message id="document.damage.picture">
        <source>The picture is damaged and cannot be shown.</source>
        <translation>画像が壊れていて表示できません。</translation>
    </message>
    <message id="document.damage.pictureTooLarge">
        <source>The picture needs more memory than is free. Close other programs, then open the document again.</source>
        <translation>画像には空きより多くのメモリーが必要です。ほかのプログラムを終了してから、もう一度ドキュメントを開いてください。</translation>
    </message>
    <message id="document.damage.unreadable">
        <source>Something in the file (%1) cannot be read.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>ファイルの中の一部 (%1) を読み取れません。</translation>
    </message>
    <message id="document.part.picture">
        <source>the picture</source>
        <translation>画像</translation>
    </message>
    <message id="document.part.table">
        <source>the data table</source>
        <translation>データ表</translation>
    </message>
    <message id="document.part.axes">
        <source>the axes</source>
        <translation>軸</translation>
    </message>
    <message id="document.part.guide">
        <source>the cursor guide</source>
        <translation>ガイド線</translation>
    </message>
    <message id="document.part.series">
        <source>the data series</source>
        <translation>データ系列</translation>
    </message>
    <message id="document.part.window">
        <source>the window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message id="document.part.file">
        <source>the whole file</source>
        <translation>ファイル全体</translation>
    </message>
    <message id="document.saving">
        <source>Saving “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>「%1」を保存しています…</translation>
    </message>
    <message id="document.saving.preparing">
        <source>Preparing the picture of “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>「%1」の画像を準備しています…</translation>
    </message>
    <message id="document.saving.cancelTip">
        <source>Stop saving; the file stays as it was (Esc)</source>
        <translation>保存を中止します。ファイルは元のまま残ります (Esc)</translation>
    </message>
    <message id="document.saving.progressName">
        <source>Progress of saving</source>
        <translation>保存の進行状況</translation>
    </message>
    <message id="document.save.overwriteTitle">
        <source>Replace “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>「%1」を置き換えますか？</translation>
    </message>
    <message id="document.save.existsText">
        <source>A document of that name is already there, and this one does not come from it.</source>
        <translation>同じ名前のドキュメントがすでにありますが、このドキュメントの元になったものではありません。</translation>
    </message>
    <message id="document.save.changedText">
        <source>Another program has changed this file since you opened or saved it. If you replace it, those changes are lost.</source>
        <translation>開くか保存した後に、ほかのプログラムがこのファイルを変更しました。置き換えると、その変更は失われます。</translation>
    </message>
    <message id="document.save.saveAs">
        <source>Save As…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message id="document.save.overwrite">
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message id="document.save.failedTitle">
        <source>“%1” could not be saved</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>「%1」を保存できませんでした</translation>
    </message>
    <message id="document.save.failedText">
        <source>%1
Your work is still open here. What was in the file before is unchanged.</source>
        <extracomment>%1 is the reason, a sentence.</extracomment>
        <translation>%1
作業内容はここに開いたままです。ファイルの以前の内容は変わっていません。</translation>
    </message>
    <message id="document.save.noMemory">
        <source>There is not enough memory to save the picture. Close other windows, then try again.</source>
        <translation>画像を保存するためのメモリーが足りません。ほかのウィンドウを閉じてから、もう一度お試しください。</translation>
    </message>
    <message id="document.close.title">
        <source>Save the changes to “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>「%1」への変更を保存しますか？</translation>
    </message>
    <message id="document.close.text">
        <source>If you do not save, the changes are lost.</source>
        <translation>保存しないと、変更は失われます。</translation>
    </message>
    <message id="document.close.save">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="document.close.dontSave">
        <source>Don’t Save</source>
        <translation>保存しない</translation>
    </message>
    <message id="document.revert.title">
        <source>Go back to “%1” as it was saved?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>「%1」を保存時の状態に戻しますか？</translation>
    </message>
    <message id="document.revert.text">
        <source>Everything that was changed since then is lost, and cannot be undone.</source>
        <translation>それ以降の変更はすべて失われ、元に戻すことはできません。</translation>
    </message>
    <message id="document.revert.revert">
        <source>Revert</source>
        <translation>戻す</translation>
    </message>
    <message id="document.open.failedTitle">
        <source>“%1” cannot be opened</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>「%1」を開けません</translation>
    </message>
    <message id="document.open.missing">
        <source>There is no such file any more. It may have been moved or renamed.</source>
        <translation>ファイルが見つかりません。移動されたか、名前が変わった可能性があります。</translation>
    </message>
    <message id="document.open.tooLarge">
        <source>The file needs more memory than is free. Close other programs, then try again.</source>
        <translation>ファイルには空きより多くのメモリーが必要です。ほかのプログラムを終了してから、もう一度試してください。</translation>
    </message>
    <message id="document.open.noFile">
        <source>This is a folder or a device, not a file.</source>
        <translation>これはファイルではなく、フォルダーまたはデバイスです。</translation>
    </message>
    <message id="document.open.unknownType">
        <source>Curvegrab X opens its own documents (.crvgrab) and pictures such as PNG, JPEG or TIFF. If this is a picture, give its name the right ending.</source>
        <translation>Curvegrab X で開けるのは、専用のドキュメント (.crvgrab) と PNG、JPEG、TIFF などの画像です。画像であれば、正しい拡張子を付けてください。</translation>
    </message>
    <message id="document.open.damagedTitle">
        <source>“%1” is damaged</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>「%1」は壊れています</translation>
    </message>
    <message id="document.open.remainsText">
        <source>%1
You can open what is left of it as a new document. The file itself stays as it is.</source>
        <extracomment>%1 says what is damaged.</extracomment>
        <translation>%1
残っている内容を新しいドキュメントとして開けます。ファイル自体は変わりません。</translation>
    </message>
    <message id="document.open.remains">
        <source>Open What Is Left</source>
        <translation>残りを開く</translation>
    </message>
    <message id="document.command.openRecent">
        <source>Open &amp;Recent</source>
        <translation>最近使ったファイル(&amp;R)</translation>
    </message>
    <message id="document.command.openPicture">
        <source>Open &amp;Picture Here…</source>
        <translation>ここに画像を開く(&amp;P)…</translation>
    </message>
    <message id="document.command.save">
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message id="document.command.saveAs">
        <source>S&amp;ave As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message id="document.command.revert">
        <source>Re&amp;vert to Saved</source>
        <translation>保存時の状態に戻す(&amp;V)</translation>
    </message>
    <message id="document.recent.item">
        <source>%1 — %2</source>
        <extracomment>A file and its folder</extracomment>
        <translation>%1 — %2</translation>
    </message>
    <message id="document.recent.clear">
        <source>Clear This List</source>
        <translation>この一覧を消去</translation>
    </message>
    <message id="document.recovery.title">
        <source>Bring back your unsaved work?</source>
        <translation>保存されていない作業を復元しますか？</translation>
    </message>
    <message id="document.recovery.text">
        <source>Curvegrab X ended before these documents were saved:
%1
Their changes were kept.</source>
        <extracomment>The names of the documents, one a line</extracomment>
        <translation>次のドキュメントが保存される前に Curvegrab X が終了しました:
%1
変更内容は残っています。</translation>
    </message>
    <message id="document.recovery.bringBack">
        <source>Bring Back</source>
        <translation>復元</translation>
    </message>
    <message id="document.recovery.later">
        <source>Ask Later</source>
        <translation>後で確認</translation>
    </message>
    <message id="document.recovery.discard">
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message id="document.recovery.failed">
        <source>Unsaved changes are not kept safe from a crash: %1 Save often.</source>
        <extracomment>The reason, a sentence</extracomment>
        <translation>保存していない変更は、異常終了に備えた保護ができていません: %1 こまめに保存してください。</translation>
    </message>
    <message id="document.recovery.noFolder">
        <source>The folder for them cannot be made.</source>
        <translation>そのためのフォルダーを作れません。</translation>
    </message>
</context>
</TS>
