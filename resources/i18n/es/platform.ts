<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="OK">
        <source>OK</source>
        <extracomment>The button that closes a message.</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <extracomment>The button that gives up a question without doing anything.</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message id="platform.files.pictures">
        <source>Pictures</source>
        <extracomment>Kind of file in the open panel.</extracomment>
        <translation>Imágenes</translation>
    </message>
    <message id="platform.files.all">
        <source>All files</source>
        <extracomment>Kind of file in the open panel.</extracomment>
        <translation>Todos los archivos</translation>
    </message>
    <message id="platform.files.openPicture">
        <source>Open Picture</source>
        <extracomment>Title of the panel that asks for a picture file.</extracomment>
        <translation>Abrir imagen</translation>
    </message>
    <message id="platform.files.overwrite">
        <source>“%1” already exists. Replace it?</source>
        <extracomment>Question before a file is overwritten; %1 is its name.</extracomment>
        <translation>«%1» ya existe. ¿Sustituirlo?</translation>
    </message>
    <message id="platform.files.overwriteHint">
        <source>Replacing it overwrites what it holds now. Cancel to choose another name.</source>
        <extracomment>Explanation of the question before a file is overwritten.</extracomment>
        <translation>Al sustituirlo se pierde su contenido actual. Cancele para elegir otro nombre.</translation>
    </message>
    <message id="platform.files.replace">
        <source>Replace</source>
        <extracomment>The button that overwrites a file.</extracomment>
        <translation>Sustituir</translation>
    </message>
    <message id="platform.password.field">
        <source>&amp;Password:</source>
        <extracomment>Label of the field into which the password of a file is typed.</extracomment>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message id="platform.password.open">
        <source>&amp;Open</source>
        <extracomment>The button that opens the locked file.</extracomment>
        <translation>&amp;Abrir</translation>
    </message>
    <message id="platform.files.saveDocument">
        <source>Save the document</source>
        <translation>Guardar el documento</translation>
    </message>
    <message id="platform.files.openFiles">
        <source>Open documents and pictures</source>
        <translation>Abrir documentos e imágenes</translation>
    </message>
    <message id="platform.files.documents">
        <source>Curvegrab X documents</source>
        <translation>Documentos de Curvegrab X</translation>
    </message>
    <message id="platform.files.documentsAndPictures">
        <source>Documents and pictures</source>
        <translation>Documentos e imágenes</translation>
    </message>
    <message id="platform.file.diskFull">
        <source>The disk is full. Make room on it, or save to another one.</source>
        <translation>El disco está lleno. Libere espacio en él o guarde en otro.</translation>
    </message>
    <message id="platform.file.tooLarge">
        <source>The file would be larger than this disk allows. Save it to another one.</source>
        <translation>El archivo sería mayor de lo que permite este disco. Guárdelo en otro.</translation>
    </message>
    <message id="platform.file.folderGone">
        <source>The folder is not there any more. Connect its disk again, or save to another folder.</source>
        <translation>La carpeta ya no está. Vuelva a conectar su disco o guarde en otra carpeta.</translation>
    </message>
    <message id="platform.file.isFolder">
        <source>There is a folder of that name. Choose another name.</source>
        <translation>Hay una carpeta con ese nombre. Elija otro nombre.</translation>
    </message>
    <message id="platform.file.readOnly">
        <source>The file is protected from changes. Save under another name, or allow changes to it.</source>
        <translation>El archivo está protegido contra cambios. Guarde con otro nombre o permita los cambios.</translation>
    </message>
    <message id="platform.file.folderReadOnly">
        <source>You may not write into this folder. Save to another one.</source>
        <translation>No puede escribir en esta carpeta. Guarde en otra.</translation>
    </message>
</context>
</TS>
