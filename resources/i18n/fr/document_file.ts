<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="document.damage.noDocument">
        <source>This is not a Curvegrab X document.</source>
        <translation>Ce n’est pas un document Curvegrab X.</translation>
    </message>
    <message id="document.damage.endsEarly">
        <source>The file ends too early: something is missing at its end.</source>
        <translation>Le fichier se termine trop tôt : il manque quelque chose à la fin.</translation>
    </message>
    <message id="document.damage.tooLarge">
        <source>Something in the file (%1) is far larger than any document has it.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Un élément du fichier (%1) est bien plus grand que dans n’importe quel document.</translation>
    </message>
    <message id="document.damage.repeatedKey">
        <source>Something in the file (%1) is there twice.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Un élément du fichier (%1) s’y trouve deux fois.</translation>
    </message>
    <message id="document.damage.badValue">
        <source>Something in the file (%1) is damaged.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Un élément du fichier (%1) est endommagé.</translation>
    </message>
    <message id="document.damage.trailing">
        <source>Something that does not belong to the document follows its end.</source>
        <translation>La fin du document est suivie de quelque chose qui n’en fait pas partie.</translation>
    </message>
    <message id="document.damage.picture">
        <source>The picture is damaged and cannot be shown.</source>
        <translation>L’image est endommagée et ne peut pas être affichée.</translation>
    </message>
    <message id="document.damage.pictureTooLarge">
        <source>The picture needs more memory than is free. Close other programs, then open the document again.</source>
        <translation>L’image demande plus de mémoire qu’il n’en reste. Fermez d’autres programmes, puis ouvrez de nouveau le document.</translation>
    </message>
    <message id="document.damage.unreadable">
        <source>Something in the file (%1) cannot be read.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Un élément du fichier (%1) ne peut pas être lu.</translation>
    </message>
    <message id="document.part.picture">
        <source>the picture</source>
        <translation>l’image</translation>
    </message>
    <message id="document.part.table">
        <source>the data table</source>
        <translation>le tableau des données</translation>
    </message>
    <message id="document.part.axes">
        <source>the axes</source>
        <translation>les axes</translation>
    </message>
    <message id="document.part.guide">
        <source>the cursor guide</source>
        <translation>les lignes guides</translation>
    </message>
    <message id="document.part.series">
        <source>the data series</source>
        <translation>les séries de données</translation>
    </message>
    <message id="document.part.window">
        <source>the window</source>
        <translation>la fenêtre</translation>
    </message>
    <message id="document.part.file">
        <source>the whole file</source>
        <translation>tout le fichier</translation>
    </message>
    <message id="document.saving">
        <source>Saving “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Enregistrement de « %1 »…</translation>
    </message>
    <message id="document.saving.preparing">
        <source>Preparing the picture of “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Préparation de l’image de « %1 »…</translation>
    </message>
    <message id="document.saving.cancelTip">
        <source>Stop saving; the file stays as it was (Esc)</source>
        <translation>Arrêter l’enregistrement ; le fichier reste tel qu’il était (Échap)</translation>
    </message>
    <message id="document.saving.progressName">
        <source>Progress of saving</source>
        <translation>Progression de l’enregistrement</translation>
    </message>
    <message id="document.save.overwriteTitle">
        <source>Replace “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Remplacer « %1 » ?</translation>
    </message>
    <message id="document.save.existsText">
        <source>A document of that name is already there, and this one does not come from it.</source>
        <translation>Un document de ce nom existe déjà, et celui-ci n’en provient pas.</translation>
    </message>
    <message id="document.save.changedText">
        <source>Another program has changed this file since you opened or saved it. If you replace it, those changes are lost.</source>
        <translation>Un autre programme a modifié ce fichier depuis que vous l’avez ouvert ou enregistré. Si vous le remplacez, ces modifications seront perdues.</translation>
    </message>
    <message id="document.save.saveAs">
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message id="document.save.overwrite">
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message id="document.save.failedTitle">
        <source>“%1” could not be saved</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>« %1 » n’a pas pu être enregistré</translation>
    </message>
    <message id="document.save.failedText">
        <source>%1
Your work is still open here. What was in the file before is unchanged.</source>
        <extracomment>%1 is the reason, a sentence.</extracomment>
        <translation>%1
Votre travail est toujours ouvert ici. Ce que le fichier contenait avant est inchangé.</translation>
    </message>
    <message id="document.save.noMemory">
        <source>There is not enough memory to save the picture. Close other windows, then try again.</source>
        <translation>Il n’y a pas assez de mémoire pour enregistrer l’image. Fermez d’autres fenêtres, puis réessayez.</translation>
    </message>
    <message id="document.close.title">
        <source>Save the changes to “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Enregistrer les modifications de « %1 » ?</translation>
    </message>
    <message id="document.close.text">
        <source>If you do not save, the changes are lost.</source>
        <translation>Si vous n’enregistrez pas, les modifications seront perdues.</translation>
    </message>
    <message id="document.close.save">
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message id="document.close.dontSave">
        <source>Don’t Save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message id="document.revert.title">
        <source>Go back to “%1” as it was saved?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Revenir à la version enregistrée de « %1 » ?</translation>
    </message>
    <message id="document.revert.text">
        <source>Everything that was changed since then is lost, and cannot be undone.</source>
        <translation>Tout ce qui a été modifié depuis sera perdu et ne pourra pas être rétabli.</translation>
    </message>
    <message id="document.revert.revert">
        <source>Revert</source>
        <translation>Revenir</translation>
    </message>
    <message id="document.open.failedTitle">
        <source>“%1” cannot be opened</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>« %1 » ne peut pas être ouvert</translation>
    </message>
    <message id="document.open.missing">
        <source>There is no such file any more. It may have been moved or renamed.</source>
        <translation>Ce fichier n’existe plus. Il a peut-être été déplacé ou renommé.</translation>
    </message>
    <message id="document.open.tooLarge">
        <source>The file needs more memory than is free. Close other programs, then try again.</source>
        <translation>Le fichier demande plus de mémoire qu’il n’en reste. Fermez d’autres programmes, puis réessayez.</translation>
    </message>
    <message id="document.open.noFile">
        <source>This is a folder or a device, not a file.</source>
        <translation>C’est un dossier ou un périphérique, pas un fichier.</translation>
    </message>
    <message id="document.open.unknownType">
        <source>Curvegrab X opens its own documents (.crvgrab) and pictures such as PNG, JPEG or TIFF. If this is a picture, give its name the right ending.</source>
        <translation>Curvegrab X ouvre ses propres documents (.crvgrab) et des images telles que PNG, JPEG ou TIFF. Si c’est une image, donnez à son nom la bonne extension.</translation>
    </message>
    <message id="document.open.damagedTitle">
        <source>“%1” is damaged</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>« %1 » est endommagé</translation>
    </message>
    <message id="document.open.remainsText">
        <source>%1
You can open what is left of it as a new document. The file itself stays as it is.</source>
        <extracomment>%1 says what is damaged.</extracomment>
        <translation>%1
Vous pouvez ouvrir ce qu’il en reste comme nouveau document. Le fichier lui-même reste tel quel.</translation>
    </message>
    <message id="document.open.remains">
        <source>Open What Is Left</source>
        <translation>Ouvrir ce qui reste</translation>
    </message>
    <message id="document.command.openRecent">
        <source>Open &amp;Recent</source>
        <translation>Réce&amp;mment ouverts</translation>
    </message>
    <message id="document.command.openPicture">
        <source>Open &amp;Picture Here…</source>
        <translation>Ouvrir une &amp;image ici…</translation>
    </message>
    <message id="document.command.save">
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message id="document.command.saveAs">
        <source>S&amp;ave As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message id="document.command.revert">
        <source>Re&amp;vert to Saved</source>
        <translation>&amp;Revenir à la version enregistrée</translation>
    </message>
    <message id="document.recent.item">
        <source>%1 — %2</source>
        <extracomment>A file and its folder</extracomment>
        <translation>%1 — %2</translation>
    </message>
    <message id="document.recent.clear">
        <source>Clear This List</source>
        <translation>Vider cette liste</translation>
    </message>
    <message id="document.recovery.title">
        <source>Bring back your unsaved work?</source>
        <translation>Récupérer votre travail non enregistré ?</translation>
    </message>
    <message id="document.recovery.text">
        <source>Curvegrab X ended before these documents were saved:
%1
Their changes were kept.</source>
        <extracomment>The names of the documents, one a line</extracomment>
        <translation>Curvegrab X s’est arrêté avant que ces documents soient enregistrés :
%1
Leurs modifications ont été conservées.</translation>
    </message>
    <message id="document.recovery.bringBack">
        <source>Bring Back</source>
        <translation>Récupérer</translation>
    </message>
    <message id="document.recovery.later">
        <source>Ask Later</source>
        <translation>Demander plus tard</translation>
    </message>
    <message id="document.recovery.discard">
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message id="document.recovery.failed">
        <source>Unsaved changes are not kept safe from a crash: %1 Save often.</source>
        <extracomment>The reason, a sentence</extracomment>
        <translation>Les modifications non enregistrées ne sont pas protégées contre un plantage : %1 Enregistrez souvent.</translation>
    </message>
    <message id="document.recovery.noFolder">
        <source>The folder for them cannot be made.</source>
        <translation>Le dossier prévu pour elles ne peut pas être créé.</translation>
    </message>
</context>
</TS>
