<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="document.damage.noDocument">
        <source>This is not a Curvegrab X document.</source>
        <translation>Das ist kein Dokument von Curvegrab X.</translation>
    </message>
    <message id="document.damage.endsEarly">
        <source>The file ends too early: something is missing at its end.</source>
        <translation>Die Datei hört zu früh auf: An ihrem Ende fehlt etwas.</translation>
    </message>
    <message id="document.damage.tooLarge">
        <source>Something in the file (%1) is far larger than any document has it.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Ein Teil der Datei (%1) ist weit größer als in jedem Dokument.</translation>
    </message>
    <message id="document.damage.repeatedKey">
        <source>Something in the file (%1) is there twice.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Ein Teil der Datei (%1) ist doppelt vorhanden.</translation>
    </message>
    <message id="document.damage.badValue">
        <source>Something in the file (%1) is damaged.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Ein Teil der Datei (%1) ist beschädigt.</translation>
    </message>
    <message id="document.damage.trailing">
        <source>Something that does not belong to the document follows its end.</source>
        <translation>Nach dem Ende des Dokuments folgt etwas, das nicht dazugehört.</translation>
    </message>
    <message id="document.damage.picture">
        <source>The picture is damaged and cannot be shown.</source>
        <translation>Das Bild ist beschädigt und kann nicht gezeigt werden.</translation>
    </message>
    <message id="document.damage.pictureTooLarge">
        <source>The picture needs more memory than is free. Close other programs, then open the document again.</source>
        <translation>Das Bild braucht mehr Speicher, als frei ist. Schließen Sie andere Programme und öffnen Sie das Dokument dann noch einmal.</translation>
    </message>
    <message id="document.damage.unreadable">
        <source>Something in the file (%1) cannot be read.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Ein Teil der Datei (%1) lässt sich nicht lesen.</translation>
    </message>
    <message id="document.part.picture">
        <source>the picture</source>
        <translation>das Bild</translation>
    </message>
    <message id="document.part.table">
        <source>the data table</source>
        <translation>die Datentabelle</translation>
    </message>
    <message id="document.part.axes">
        <source>the axes</source>
        <translation>die Achsen</translation>
    </message>
    <message id="document.part.guide">
        <source>the cursor guide</source>
        <translation>die Hilfslinien</translation>
    </message>
    <message id="document.part.series">
        <source>the data series</source>
        <translation>die Datenreihen</translation>
    </message>
    <message id="document.part.window">
        <source>the window</source>
        <translation>das Fenster</translation>
    </message>
    <message id="document.part.file">
        <source>the whole file</source>
        <translation>die ganze Datei</translation>
    </message>
    <message id="document.saving">
        <source>Saving “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>„%1“ wird gespeichert…</translation>
    </message>
    <message id="document.saving.preparing">
        <source>Preparing the picture of “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Das Bild von „%1“ wird vorbereitet…</translation>
    </message>
    <message id="document.saving.cancelTip">
        <source>Stop saving; the file stays as it was (Esc)</source>
        <translation>Das Speichern abbrechen; die Datei bleibt, wie sie war (Esc)</translation>
    </message>
    <message id="document.saving.progressName">
        <source>Progress of saving</source>
        <translation>Fortschritt des Speicherns</translation>
    </message>
    <message id="document.save.overwriteTitle">
        <source>Replace “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>„%1“ ersetzen?</translation>
    </message>
    <message id="document.save.existsText">
        <source>A document of that name is already there, and this one does not come from it.</source>
        <translation>Ein Dokument dieses Namens gibt es schon, und dieses hier stammt nicht daraus.</translation>
    </message>
    <message id="document.save.changedText">
        <source>Another program has changed this file since you opened or saved it. If you replace it, those changes are lost.</source>
        <translation>Ein anderes Programm hat diese Datei geändert, seit Sie sie geöffnet oder gespeichert haben. Wenn Sie sie ersetzen, gehen diese Änderungen verloren.</translation>
    </message>
    <message id="document.save.saveAs">
        <source>Save As…</source>
        <translation>Speichern unter…</translation>
    </message>
    <message id="document.save.overwrite">
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message id="document.save.failedTitle">
        <source>“%1” could not be saved</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>„%1“ konnte nicht gespeichert werden</translation>
    </message>
    <message id="document.save.failedText">
        <source>%1
Your work is still open here. What was in the file before is unchanged.</source>
        <extracomment>%1 is the reason, a sentence.</extracomment>
        <translation>%1
Ihre Arbeit ist hier noch geöffnet. Was vorher in der Datei war, ist unverändert.</translation>
    </message>
    <message id="document.save.noMemory">
        <source>There is not enough memory to save the picture. Close other windows, then try again.</source>
        <translation>Der Speicher reicht nicht, um das Bild zu speichern. Schließen Sie andere Fenster und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="document.close.title">
        <source>Save the changes to “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Änderungen an „%1“ speichern?</translation>
    </message>
    <message id="document.close.text">
        <source>If you do not save, the changes are lost.</source>
        <translation>Wenn Sie nicht speichern, gehen die Änderungen verloren.</translation>
    </message>
    <message id="document.close.save">
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message id="document.close.dontSave">
        <source>Don’t Save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message id="document.revert.title">
        <source>Go back to “%1” as it was saved?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Zum gespeicherten Stand von „%1“ zurückkehren?</translation>
    </message>
    <message id="document.revert.text">
        <source>Everything that was changed since then is lost, and cannot be undone.</source>
        <translation>Alles, was seitdem geändert wurde, geht unwiderruflich verloren.</translation>
    </message>
    <message id="document.revert.revert">
        <source>Revert</source>
        <translation>Zurückkehren</translation>
    </message>
    <message id="document.open.failedTitle">
        <source>“%1” cannot be opened</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>„%1“ lässt sich nicht öffnen</translation>
    </message>
    <message id="document.open.missing">
        <source>There is no such file any more. It may have been moved or renamed.</source>
        <translation>Diese Datei gibt es nicht mehr. Sie wurde vielleicht verschoben oder umbenannt.</translation>
    </message>
    <message id="document.open.tooLarge">
        <source>The file needs more memory than is free. Close other programs, then try again.</source>
        <translation>Die Datei braucht mehr Speicher, als frei ist. Schließen Sie andere Programme und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message id="document.open.noFile">
        <source>This is a folder or a device, not a file.</source>
        <translation>Das ist ein Ordner oder ein Gerät, keine Datei.</translation>
    </message>
    <message id="document.open.unknownType">
        <source>Curvegrab X opens its own documents (.crvgrab) and pictures such as PNG, JPEG or TIFF. If this is a picture, give its name the right ending.</source>
        <translation>Curvegrab X öffnet seine eigenen Dokumente (.crvgrab) und Bilder wie PNG, JPEG oder TIFF. Ist dies ein Bild, dann geben Sie seinem Namen die richtige Endung.</translation>
    </message>
    <message id="document.open.damagedTitle">
        <source>“%1” is damaged</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>„%1“ ist beschädigt</translation>
    </message>
    <message id="document.open.remainsText">
        <source>%1
You can open what is left of it as a new document. The file itself stays as it is.</source>
        <extracomment>%1 says what is damaged.</extracomment>
        <translation>%1
Sie können, was davon übrig ist, als neues Dokument öffnen. Die Datei selbst bleibt, wie sie ist.</translation>
    </message>
    <message id="document.open.remains">
        <source>Open What Is Left</source>
        <translation>Rest öffnen</translation>
    </message>
    <message id="document.command.openRecent">
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message id="document.command.openPicture">
        <source>Open &amp;Picture Here…</source>
        <translation>Bild &amp;hier öffnen…</translation>
    </message>
    <message id="document.command.save">
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message id="document.command.saveAs">
        <source>S&amp;ave As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message id="document.command.revert">
        <source>Re&amp;vert to Saved</source>
        <translation>Zurück zur &amp;gespeicherten Fassung</translation>
    </message>
    <message id="document.recent.item">
        <source>%1 — %2</source>
        <extracomment>A file and its folder</extracomment>
        <translation>%1 — %2</translation>
    </message>
    <message id="document.recent.clear">
        <source>Clear This List</source>
        <translation>Diese Liste leeren</translation>
    </message>
    <message id="document.recovery.title">
        <source>Bring back your unsaved work?</source>
        <translation>Nicht gespeicherte Arbeit wiederherstellen?</translation>
    </message>
    <message id="document.recovery.text">
        <source>Curvegrab X ended before these documents were saved:
%1
Their changes were kept.</source>
        <extracomment>The names of the documents, one a line</extracomment>
        <translation>Curvegrab X wurde beendet, bevor diese Dokumente gespeichert waren:
%1
Ihre Änderungen sind erhalten.</translation>
    </message>
    <message id="document.recovery.bringBack">
        <source>Bring Back</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message id="document.recovery.later">
        <source>Ask Later</source>
        <translation>Später fragen</translation>
    </message>
    <message id="document.recovery.discard">
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message id="document.recovery.failed">
        <source>Unsaved changes are not kept safe from a crash: %1 Save often.</source>
        <extracomment>The reason, a sentence</extracomment>
        <translation>Nicht gespeicherte Änderungen sind vor einem Absturz nicht sicher: %1 Speichern Sie oft.</translation>
    </message>
    <message id="document.recovery.noFolder">
        <source>The folder for them cannot be made.</source>
        <translation>Der Ordner dafür lässt sich nicht anlegen.</translation>
    </message>
</context>
</TS>
