<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
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
        <translation>Abbrechen</translation>
    </message>
    <message id="platform.files.pictures">
        <source>Pictures</source>
        <extracomment>Kind of file in the open panel.</extracomment>
        <translation>Bilder</translation>
    </message>
    <message id="platform.files.all">
        <source>All files</source>
        <extracomment>Kind of file in the open panel.</extracomment>
        <translation>Alle Dateien</translation>
    </message>
    <message id="platform.files.openPicture">
        <source>Open Picture</source>
        <extracomment>Title of the panel that asks for a picture file.</extracomment>
        <translation>Bild öffnen</translation>
    </message>
    <message id="platform.files.overwrite">
        <source>“%1” already exists. Replace it?</source>
        <extracomment>Question before a file is overwritten; %1 is its name.</extracomment>
        <translation>„%1“ gibt es schon. Ersetzen?</translation>
    </message>
    <message id="platform.files.overwriteHint">
        <source>Replacing it overwrites what it holds now. Cancel to choose another name.</source>
        <extracomment>Explanation of the question before a file is overwritten.</extracomment>
        <translation>Beim Ersetzen geht der bisherige Inhalt verloren. Brechen Sie ab, um einen anderen Namen zu wählen.</translation>
    </message>
    <message id="platform.files.replace">
        <source>Replace</source>
        <extracomment>The button that overwrites a file.</extracomment>
        <translation>Ersetzen</translation>
    </message>
    <message id="platform.password.field">
        <source>&amp;Password:</source>
        <extracomment>Label of the field into which the password of a file is typed.</extracomment>
        <translation>&amp;Passwort:</translation>
    </message>
    <message id="platform.password.open">
        <source>&amp;Open</source>
        <extracomment>The button that opens the locked file.</extracomment>
        <translation>Öffn&amp;en</translation>
    </message>
    <message id="platform.files.saveDocument">
        <source>Save the document</source>
        <translation>Das Dokument speichern</translation>
    </message>
    <message id="platform.files.openFiles">
        <source>Open documents and pictures</source>
        <translation>Dokumente und Bilder öffnen</translation>
    </message>
    <message id="platform.files.documents">
        <source>Curvegrab X documents</source>
        <translation>Dokumente von Curvegrab X</translation>
    </message>
    <message id="platform.files.documentsAndPictures">
        <source>Documents and pictures</source>
        <translation>Dokumente und Bilder</translation>
    </message>
    <message id="platform.file.diskFull">
        <source>The disk is full. Make room on it, or save to another one.</source>
        <translation>Der Datenträger ist voll. Schaffen Sie Platz oder speichern Sie auf einem anderen.</translation>
    </message>
    <message id="platform.file.tooLarge">
        <source>The file would be larger than this disk allows. Save it to another one.</source>
        <translation>Die Datei würde größer, als dieser Datenträger erlaubt. Speichern Sie sie auf einem anderen.</translation>
    </message>
    <message id="platform.file.folderGone">
        <source>The folder is not there any more. Connect its disk again, or save to another folder.</source>
        <translation>Den Ordner gibt es nicht mehr. Verbinden Sie seinen Datenträger wieder oder speichern Sie in einem anderen Ordner.</translation>
    </message>
    <message id="platform.file.isFolder">
        <source>There is a folder of that name. Choose another name.</source>
        <translation>Ein Ordner hat schon diesen Namen. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message id="platform.file.readOnly">
        <source>The file is protected from changes. Save under another name, or allow changes to it.</source>
        <translation>Die Datei ist vor Änderungen geschützt. Speichern Sie unter einem anderen Namen oder erlauben Sie Änderungen.</translation>
    </message>
    <message id="platform.file.folderReadOnly">
        <source>You may not write into this folder. Save to another one.</source>
        <translation>Sie dürfen in diesen Ordner nicht schreiben. Speichern Sie in einem anderen.</translation>
    </message>
</context>
</TS>
