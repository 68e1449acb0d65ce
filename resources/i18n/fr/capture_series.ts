<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="AxisChanged">
        <source>The axes have changed</source>
        <extracomment>Title of the message shown when a point was taken under other axes than the current series.</extracomment>
        <translation>Les axes ont changé</translation>
    </message>
    <message id="NextSeriesUsed">
        <source>The current series was begun with other axes, so the new point went into series %d, which was empty. Go on clicking there.</source>
        <extracomment>%d is the number of the series, counted from 1.</extracomment>
        <translation>La série actuelle a été commencée avec d’autres axes ; le nouveau point est donc allé dans la série %d, qui était vide. Continuez à cliquer là.</translation>
    </message>
    <message id="SeriesIsFull">
        <source>The current series was begun with other axes, and no series is empty, so the point was not added. Save your data, then delete a series that you no longer need.</source>
        <extracomment>Shown when no series is left for a point.</extracomment>
        <translation>La série actuelle a été commencée avec d’autres axes et aucune série n’est vide ; le point n’a donc pas été ajouté. Enregistrez vos données, puis effacez une série dont vous n’avez plus besoin.</translation>
    </message>
    <message id="actionDataAppend">
        <source>Add Point</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>Ajouter un point</translation>
    </message>
    <message id="actionDataDelete">
        <source>Delete Series Data</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>Effacer les données de la série</translation>
    </message>
    <message id="SaveAllMessage">
        <source>Save all series as tab-separated text</source>
        <extracomment>What the save panel says when all series are saved.</extracomment>
        <translation>Enregistrer toutes les séries en texte séparé par des tabulations</translation>
    </message>
    <message id="SaveSelectionMessage">
        <source>Save the selected series as tab-separated text</source>
        <extracomment>What the save panel says when the series selected in the table are saved.</extracomment>
        <translation>Enregistrer les séries sélectionnées en texte séparé par des tabulations</translation>
    </message>
    <message id="capture.export.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of the message after a failed save; %1 is the file's name.</extracomment>
        <translation>« %1 » n’a pas pu être enregistré</translation>
    </message>
    <message id="capture.export.no-folder">
        <source>The folder “%1” does not exist any more. Choose another folder.</source>
        <extracomment>Why a file was not saved; %1 is the folder's name.</extracomment>
        <translation>Le dossier « %1 » n’existe plus. Choisissez un autre dossier.</translation>
    </message>
    <message id="capture.export.is-folder">
        <source>There is a folder of this name. Choose another name.</source>
        <extracomment>Why a file was not saved.</extracomment>
        <translation>Un dossier porte déjà ce nom. Choisissez un autre nom.</translation>
    </message>
    <message id="capture.export.not-allowed">
        <source>You are not allowed to write there. Choose another folder.</source>
        <extracomment>Why a file was not saved.</extracomment>
        <translation>Vous n’avez pas le droit d’écrire à cet endroit. Choisissez un autre dossier.</translation>
    </message>
    <message id="capture.export.not-written">
        <source>The disk may be full or no longer connected. Make room or choose another folder, then save again.</source>
        <extracomment>Why a file was not saved, when the reason is not known exactly.</extracomment>
        <translation>Le disque est peut-être plein ou n’est plus connecté. Faites de la place ou choisissez un autre dossier, puis enregistrez à nouveau.</translation>
    </message>
</context>
</TS>
