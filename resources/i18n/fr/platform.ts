<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
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
        <translation>Annuler</translation>
    </message>
    <message id="platform.files.pictures">
        <source>Pictures</source>
        <extracomment>Kind of file in the open panel.</extracomment>
        <translation>Images</translation>
    </message>
    <message id="platform.files.all">
        <source>All files</source>
        <extracomment>Kind of file in the open panel.</extracomment>
        <translation>Tous les fichiers</translation>
    </message>
    <message id="platform.files.openPicture">
        <source>Open Picture</source>
        <extracomment>Title of the panel that asks for a picture file.</extracomment>
        <translation>Ouvrir une image</translation>
    </message>
    <message id="platform.files.overwrite">
        <source>“%1” already exists. Replace it?</source>
        <extracomment>Question before a file is overwritten; %1 is its name.</extracomment>
        <translation>« %1 » existe déjà. Le remplacer ?</translation>
    </message>
    <message id="platform.files.overwriteHint">
        <source>Replacing it overwrites what it holds now. Cancel to choose another name.</source>
        <extracomment>Explanation of the question before a file is overwritten.</extracomment>
        <translation>Le remplacer écrase son contenu actuel. Annulez pour choisir un autre nom.</translation>
    </message>
    <message id="platform.files.replace">
        <source>Replace</source>
        <extracomment>The button that overwrites a file.</extracomment>
        <translation>Remplacer</translation>
    </message>
    <message id="platform.password.field">
        <source>&amp;Password:</source>
        <extracomment>Label of the field into which the password of a file is typed.</extracomment>
        <translation>&amp;Mot de passe :</translation>
    </message>
    <message id="platform.password.open">
        <source>&amp;Open</source>
        <extracomment>The button that opens the locked file.</extracomment>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message id="platform.files.saveDocument">
        <source>Save the document</source>
        <translation>Enregistrer le document</translation>
    </message>
    <message id="platform.files.openFiles">
        <source>Open documents and pictures</source>
        <translation>Ouvrir des documents et des images</translation>
    </message>
    <message id="platform.files.documents">
        <source>Curvegrab X documents</source>
        <translation>Documents Curvegrab X</translation>
    </message>
    <message id="platform.files.documentsAndPictures">
        <source>Documents and pictures</source>
        <translation>Documents et images</translation>
    </message>
    <message id="platform.file.diskFull">
        <source>The disk is full. Make room on it, or save to another one.</source>
        <translation>Le disque est plein. Faites-y de la place, ou enregistrez sur un autre.</translation>
    </message>
    <message id="platform.file.tooLarge">
        <source>The file would be larger than this disk allows. Save it to another one.</source>
        <translation>Le fichier serait plus grand que ce disque ne le permet. Enregistrez-le sur un autre.</translation>
    </message>
    <message id="platform.file.folderGone">
        <source>The folder is not there any more. Connect its disk again, or save to another folder.</source>
        <translation>Le dossier n’est plus là. Reconnectez son disque, ou enregistrez dans un autre dossier.</translation>
    </message>
    <message id="platform.file.isFolder">
        <source>There is a folder of that name. Choose another name.</source>
        <translation>Un dossier porte déjà ce nom. Choisissez un autre nom.</translation>
    </message>
    <message id="platform.file.readOnly">
        <source>The file is protected from changes. Save under another name, or allow changes to it.</source>
        <translation>Le fichier est protégé contre les modifications. Enregistrez sous un autre nom, ou autorisez les modifications.</translation>
    </message>
    <message id="platform.file.folderReadOnly">
        <source>You may not write into this folder. Save to another one.</source>
        <translation>Vous ne pouvez pas écrire dans ce dossier. Enregistrez dans un autre.</translation>
    </message>
</context>
</TS>
