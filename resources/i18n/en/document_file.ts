<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="document.damage.noDocument">
        <source>This is not a Curvegrab X document.</source>
        <translation>This is not a Curvegrab X document.</translation>
    </message>
    <message id="document.damage.endsEarly">
        <source>The file ends too early: something is missing at its end.</source>
        <translation>The file ends too early: something is missing at its end.</translation>
    </message>
    <message id="document.damage.tooLarge">
        <source>Something in the file (%1) is far larger than any document has it.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Something in the file (%1) is far larger than any document has it.</translation>
    </message>
    <message id="document.damage.repeatedKey">
        <source>Something in the file (%1) is there twice.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Something in the file (%1) is there twice.</translation>
    </message>
    <message id="document.damage.badValue">
        <source>Something in the file (%1) is damaged.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Something in the file (%1) is damaged.</translation>
    </message>
    <message id="document.damage.trailing">
        <source>Something that does not belong to the document follows its end.</source>
        <translation>Something that does not belong to the document follows its end.</translation>
    </message>
    <message id="document.damage.picture">
        <source>The picture is damaged and cannot be shown.</source>
        <translation>The picture is damaged and cannot be shown.</translation>
    </message>
    <message id="document.damage.pictureTooLarge">
        <source>The picture needs more memory than is free. Close other programs, then open the document again.</source>
        <translation>The picture needs more memory than is free. Close other programs, then open the document again.</translation>
    </message>
    <message id="document.damage.unreadable">
        <source>Something in the file (%1) cannot be read.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Something in the file (%1) cannot be read.</translation>
    </message>
    <message id="document.part.picture">
        <source>the picture</source>
        <translation>the picture</translation>
    </message>
    <message id="document.part.table">
        <source>the data table</source>
        <translation>the data table</translation>
    </message>
    <message id="document.part.axes">
        <source>the axes</source>
        <translation>the axes</translation>
    </message>
    <message id="document.part.guide">
        <source>the cursor guide</source>
        <translation>the cursor guide</translation>
    </message>
    <message id="document.part.series">
        <source>the data series</source>
        <translation>the data series</translation>
    </message>
    <message id="document.part.window">
        <source>the window</source>
        <translation>the window</translation>
    </message>
    <message id="document.part.file">
        <source>the whole file</source>
        <translation>the whole file</translation>
    </message>
    <message id="document.saving">
        <source>Saving “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Saving “%1”…</translation>
    </message>
    <message id="document.saving.preparing">
        <source>Preparing the picture of “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Preparing the picture of “%1”…</translation>
    </message>
    <message id="document.saving.cancelTip">
        <source>Stop saving; the file stays as it was (Esc)</source>
        <translation>Stop saving; the file stays as it was (Esc)</translation>
    </message>
    <message id="document.saving.progressName">
        <source>Progress of saving</source>
        <translation>Progress of saving</translation>
    </message>
    <message id="document.save.overwriteTitle">
        <source>Replace “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Replace “%1”?</translation>
    </message>
    <message id="document.save.existsText">
        <source>A document of that name is already there, and this one does not come from it.</source>
        <translation>A document of that name is already there, and this one does not come from it.</translation>
    </message>
    <message id="document.save.changedText">
        <source>Another program has changed this file since you opened or saved it. If you replace it, those changes are lost.</source>
        <translation>Another program has changed this file since you opened or saved it. If you replace it, those changes are lost.</translation>
    </message>
    <message id="document.save.saveAs">
        <source>Save As…</source>
        <translation>Save As…</translation>
    </message>
    <message id="document.save.overwrite">
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message id="document.save.failedTitle">
        <source>“%1” could not be saved</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>“%1” could not be saved</translation>
    </message>
    <message id="document.save.failedText">
        <source>%1
Your work is still open here. What was in the file before is unchanged.</source>
        <extracomment>%1 is the reason, a sentence.</extracomment>
        <translation>%1
Your work is still open here. What was in the file before is unchanged.</translation>
    </message>
    <message id="document.save.noMemory">
        <source>There is not enough memory to save the picture. Close other windows, then try again.</source>
        <translation>There is not enough memory to save the picture. Close other windows, then try again.</translation>
    </message>
    <message id="document.close.title">
        <source>Save the changes to “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Save the changes to “%1”?</translation>
    </message>
    <message id="document.close.text">
        <source>If you do not save, the changes are lost.</source>
        <translation>If you do not save, the changes are lost.</translation>
    </message>
    <message id="document.close.save">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="document.close.dontSave">
        <source>Don’t Save</source>
        <translation>Don’t Save</translation>
    </message>
    <message id="document.revert.title">
        <source>Go back to “%1” as it was saved?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Go back to “%1” as it was saved?</translation>
    </message>
    <message id="document.revert.text">
        <source>Everything that was changed since then is lost, and cannot be undone.</source>
        <translation>Everything that was changed since then is lost, and cannot be undone.</translation>
    </message>
    <message id="document.revert.revert">
        <source>Revert</source>
        <translation>Revert</translation>
    </message>
    <message id="document.open.failedTitle">
        <source>“%1” cannot be opened</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>“%1” cannot be opened</translation>
    </message>
    <message id="document.open.missing">
        <source>There is no such file any more. It may have been moved or renamed.</source>
        <translation>There is no such file any more. It may have been moved or renamed.</translation>
    </message>
    <message id="document.open.tooLarge">
        <source>The file needs more memory than is free. Close other programs, then try again.</source>
        <translation>The file needs more memory than is free. Close other programs, then try again.</translation>
    </message>
    <message id="document.open.noFile">
        <source>This is a folder or a device, not a file.</source>
        <translation>This is a folder or a device, not a file.</translation>
    </message>
    <message id="document.open.unknownType">
        <source>Curvegrab X opens its own documents (.crvgrab) and pictures such as PNG, JPEG or TIFF. If this is a picture, give its name the right ending.</source>
        <translation>Curvegrab X opens its own documents (.crvgrab) and pictures such as PNG, JPEG or TIFF. If this is a picture, give its name the right ending.</translation>
    </message>
    <message id="document.open.damagedTitle">
        <source>“%1” is damaged</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>“%1” is damaged</translation>
    </message>
    <message id="document.open.remainsText">
        <source>%1
You can open what is left of it as a new document. The file itself stays as it is.</source>
        <extracomment>%1 says what is damaged.</extracomment>
        <translation>%1
You can open what is left of it as a new document. The file itself stays as it is.</translation>
    </message>
    <message id="document.open.remains">
        <source>Open What Is Left</source>
        <translation>Open What Is Left</translation>
    </message>
    <message id="document.command.openRecent">
        <source>Open &amp;Recent</source>
        <translation>Open &amp;Recent</translation>
    </message>
    <message id="document.command.openPicture">
        <source>Open &amp;Picture Here…</source>
        <translation>Open &amp;Picture Here…</translation>
    </message>
    <message id="document.command.save">
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message id="document.command.saveAs">
        <source>S&amp;ave As…</source>
        <translation>S&amp;ave As…</translation>
    </message>
    <message id="document.command.revert">
        <source>Re&amp;vert to Saved</source>
        <translation>Re&amp;vert to Saved</translation>
    </message>
    <message id="document.recent.item">
        <source>%1 — %2</source>
        <extracomment>A file and its folder</extracomment>
        <translation>%1 — %2</translation>
    </message>
    <message id="document.recent.clear">
        <source>Clear This List</source>
        <translation>Clear This List</translation>
    </message>
    <message id="document.recovery.title">
        <source>Bring back your unsaved work?</source>
        <translation>Bring back your unsaved work?</translation>
    </message>
    <message id="document.recovery.text">
        <source>Curvegrab X ended before these documents were saved:
%1
Their changes were kept.</source>
        <extracomment>The names of the documents, one a line</extracomment>
        <translation>Curvegrab X ended before these documents were saved:
%1
Their changes were kept.</translation>
    </message>
    <message id="document.recovery.bringBack">
        <source>Bring Back</source>
        <translation>Bring Back</translation>
    </message>
    <message id="document.recovery.later">
        <source>Ask Later</source>
        <translation>Ask Later</translation>
    </message>
    <message id="document.recovery.discard">
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message id="document.recovery.failed">
        <source>Unsaved changes are not kept safe from a crash: %1 Save often.</source>
        <extracomment>The reason, a sentence</extracomment>
        <translation>Unsaved changes are not kept safe from a crash: %1 Save often.</translation>
    </message>
    <message id="document.recovery.noFolder">
        <source>The folder for them cannot be made.</source>
        <translation>The folder for them cannot be made.</translation>
    </message>
</context>
</TS>
