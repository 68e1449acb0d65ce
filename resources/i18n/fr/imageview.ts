<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="ErrorOccurred">
        <source>Something went wrong</source>
        <extracomment>Title of a message that explains why a picture cannot be opened or points cannot be taken.</extracomment>
        <translation>Un problème est survenu</translation>
    </message>
    <message id="CantMakeConverter">
        <source>The axis settings do not fit together, so points cannot be turned into values. Go back to the axis settings and check that the anchors do not coincide and that the axis values differ.</source>
        <extracomment>Explains why the digitizing page cannot take points.</extracomment>
        <translation>Les réglages des axes ne vont pas ensemble ; les points ne peuvent donc pas être convertis en valeurs. Revenez au réglage des axes et vérifiez que les ancres ne coïncident pas et que les valeurs des axes diffèrent.</translation>
    </message>
    <message id="Trimming">
        <source>Trim the picture?</source>
        <extracomment>Title of the question after a rectangle was dragged to trim the picture to.</extracomment>
        <translation>Rogner l’image ?</translation>
    </message>
    <message id="TrimmingMsg">
        <source>Everything outside the dashed rectangle is cut off, and the axes go back to their first places. This cannot be undone; the picture file stays as it is.</source>
        <extracomment>Explains what trimming does.</extracomment>
        <translation>Tout ce qui est hors du rectangle pointillé est coupé et les axes reviennent à leur place initiale. Cela ne peut pas être annulé ; le fichier de l’image reste tel quel.</translation>
    </message>
    <message id="Trim">
        <source>Trim</source>
        <extracomment>Button: trims the picture.</extracomment>
        <translation>Rogner</translation>
    </message>
    <message id="imageview.error.missing">
        <source>“%1” could not be found. It may have been moved, renamed or deleted.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » est introuvable. Le fichier a peut-être été déplacé, renommé ou supprimé.</translation>
    </message>
    <message id="imageview.error.folder">
        <source>“%1” is a folder. Choose a picture file in it.</source>
        <extracomment>%1 is the name of the folder.</extracomment>
        <translation>« %1 » est un dossier. Choisissez-y un fichier d’image.</translation>
    </message>
    <message id="imageview.error.unreadable">
        <source>“%1” cannot be read. Check that you have the permission to open it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » ne peut pas être lu. Vérifiez que vous avez le droit de l’ouvrir.</translation>
    </message>
    <message id="imageview.error.empty">
        <source>“%1” is empty. Get the file once more, then try again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » est vide. Procurez-vous à nouveau le fichier, puis réessayez.</translation>
    </message>
    <message id="imageview.error.not-a-picture">
        <source>“%1” is not a picture that can be opened. Choose a PNG, JPEG, TIFF, BMP, GIF, WebP, SVG or PDF file.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » n’est pas une image qui peut être ouverte. Choisissez un fichier PNG, JPEG, TIFF, BMP, GIF, WebP, SVG ou PDF.</translation>
    </message>
    <message id="imageview.error.damaged">
        <source>“%1” is damaged or incomplete. Get the file once more, or save it anew in the program that made it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » est endommagé ou incomplet. Procurez-vous à nouveau le fichier, ou enregistrez-le à nouveau dans le programme qui l’a créé.</translation>
    </message>
    <message id="imageview.error.too-large">
        <source>“%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or save the picture with fewer pixels.</source>
        <extracomment>%1 is the name of the file, %2 its width and %3 its height.</extracomment>
        <translation>« %1 » demande plus de mémoire qu’il n’en reste (%2 × %3 pixels). Fermez d’autres programmes, ou enregistrez l’image avec moins de pixels.</translation>
    </message>
    <message id="imageview.error.cancelled">
        <source>“%1” was not opened.</source>
        <extracomment>%1 is the name of the file; the user has stopped its reading.</extracomment>
        <translation>« %1 » n’a pas été ouvert.</translation>
    </message>
    <message id="imageview.pasted.name">
        <source>pasted picture</source>
        <extracomment>Stands in place of a file name while a large pasted or dropped picture is read.</extracomment>
        <translation>image collée</translation>
    </message>
    <message id="imageview.pasted.damaged">
        <source>The picture from the other program is damaged or incomplete. Copy or drag it once more, or save it to a file there and open that file.</source>
        <extracomment>A picture was pasted or dropped as data, not as a file.</extracomment>
        <translation>L’image de l’autre programme est endommagée ou incomplète. Copiez-la ou faites-la glisser à nouveau, ou enregistrez-la dans un fichier depuis ce programme et ouvrez ce fichier.</translation>
    </message>
    <message id="imageview.pasted.not-a-picture">
        <source>What the other program handed over cannot be read as a picture. Save it there as a PNG file and open that file.</source>
        <extracomment>Something was pasted or dropped as picture data, not as a file.</extracomment>
        <translation>Ce que l’autre programme a transmis ne peut pas être lu comme image. Depuis ce programme, enregistrez-le en PNG, puis ouvrez ce fichier.</translation>
    </message>
    <message id="imageview.pasted.too-large">
        <source>The picture from the other program needs more memory than is free (%2 × %3 pixels). Close other programs, or copy it with fewer pixels.</source>
        <extracomment>A picture was pasted or dropped as data; %2 is its width and %3 its height.</extracomment>
        <translation>L’image de l’autre programme demande plus de mémoire qu’il n’en reste (%2 × %3 pixels). Fermez d’autres programmes, ou copiez-la avec moins de pixels.</translation>
    </message>
    <message id="imageview.reading.label">
        <source>Opening “%1” …</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>Ouverture de « %1 » …</translation>
    </message>
    <message id="imageview.reading.cancel-tip">
        <source>Stop opening this file and keep the present picture</source>
        <extracomment>Tooltip of the button that stops the reading of a large file.</extracomment>
        <translation>Ne pas ouvrir ce fichier et garder l’image présente</translation>
    </message>
    <message id="imageview.reading.progress-name">
        <source>Reading progress</source>
        <extracomment>Name of the progress bar for screen readers.</extracomment>
        <translation>Progression de la lecture</translation>
    </message>
    <message id="imageview.view.name">
        <source>Picture of the chart</source>
        <extracomment>Name of the picture view for screen readers.</extracomment>
        <translation>Image du graphique</translation>
    </message>
    <message id="imageview.zoom-slider.name">
        <source>Zoom</source>
        <extracomment>Name of the zoom slider for screen readers.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message id="imageview.zoom-slider.tip">
        <source>Zoom the picture</source>
        <extracomment>Tooltip of the zoom slider.</extracomment>
        <translation>Agrandir ou réduire l’image</translation>
    </message>
    <message id="PageOfTotal">
        <source>Page %1 of %2</source>
        <extracomment>In the panel that chooses a page of a PDF file: %1 is the number of the page shown, %2 how many there are.</extracomment>
        <translation>Page %1 sur %2</translation>
    </message>
    <message id="imageview.error.not-a-pdf">
        <source>“%1” is not a PDF file, although its name says so. Get the file once more, or choose another one.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » n’est pas un fichier PDF, malgré son nom. Procurez-vous à nouveau le fichier, ou choisissez-en un autre.</translation>
    </message>
    <message id="imageview.error.pdf-under-other-name">
        <source>“%1” is a PDF file under another name. Let its name end in “.pdf”, in small letters, and open it again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » est un fichier PDF sous un autre nom. Faites finir son nom par « .pdf », en minuscules, et ouvrez-le à nouveau.</translation>
    </message>
    <message id="imageview.error.no-pages">
        <source>“%1” has no pages. Choose another PDF file.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » n’a pas de pages. Choisissez un autre fichier PDF.</translation>
    </message>
    <message id="imageview.error.page-too-large">
        <source>The page of “%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or choose a smaller PDF reading scale.</source>
        <extracomment>%1 is the name of the file, %2 and %3 the width and height of the picture of its page.</extracomment>
        <translation>La page de « %1 » demande plus de mémoire qu’il n’en reste (%2 × %3 pixels). Fermez d’autres programmes, ou choisissez une échelle de lecture des PDF plus petite.</translation>
    </message>
    <message id="imageview.error.needs-password">
        <source>“%1” is locked with a password. Open it once more and type the password.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » est protégé par un mot de passe. Ouvrez-le à nouveau et saisissez le mot de passe.</translation>
    </message>
    <message id="imageview.error.unknown-protection">
        <source>“%1” is protected in a way that is not supported. Save it without protection in the program that made it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » est protégé d’une façon qui n’est pas prise en charge. Enregistrez-le sans protection dans le programme qui l’a créé.</translation>
    </message>
    <message id="imageview.error.pdf-module-missing">
        <source>“%1” cannot be opened because the part of Curvegrab X that knows PDF files is missing. Please install the program again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>« %1 » ne peut pas être ouvert, car la partie de Curvegrab X qui lit les fichiers PDF manque. Veuillez réinstaller le programme.</translation>
    </message>
    <message id="imageview.pdf.password-title">
        <source>“%1” is locked with a password</source>
        <extracomment>%1 is the name of the PDF file. Title of the sheet that asks for its password.</extracomment>
        <translation>« %1 » est protégé par un mot de passe</translation>
    </message>
    <message id="imageview.pdf.password-text">
        <source>Type the password to open the file.</source>
        <extracomment>In the sheet that asks for the password of a PDF file.</extracomment>
        <translation>Saisissez le mot de passe pour ouvrir le fichier.</translation>
    </message>
    <message id="imageview.pdf.password-was-wrong">
        <source>This password is not the right one. Check the Caps Lock key and type it again.</source>
        <extracomment>In the sheet that asks for the password of a PDF file, after a wrong one.</extracomment>
        <translation>Ce mot de passe n’est pas le bon. Vérifiez la touche Verr. Maj et saisissez-le à nouveau.</translation>
    </message>
    <message id="imageview.choose-page.title">
        <source>Choose a Page of “%1”</source>
        <extracomment>Title of the panel that chooses a page of a PDF file: %1 is the name of the file.</extracomment>
        <translation>Choisir une page de « %1 »</translation>
    </message>
    <message id="imageview.choose-page.rendering">
        <source>Painting the page …</source>
        <extracomment>Shown in place of the preview of a page that takes long.</extracomment>
        <translation>Tracé de la page …</translation>
    </message>
    <message id="imageview.choose-page.unreadable">
        <source>This page cannot be shown.</source>
        <extracomment>Shown in place of the preview of a damaged page.</extracomment>
        <translation>Cette page ne peut pas être affichée.</translation>
    </message>
    <message id="imageview.choose-page.view-tip">
        <source>Turn pages with the wheel; double-click to open this one</source>
        <extracomment>Tooltip of the preview of a page.</extracomment>
        <translation>Tournez les pages avec la molette ; double-cliquez pour ouvrir celle-ci</translation>
    </message>
    <message id="imageview.choose-page.view-name">
        <source>Preview of the page</source>
        <extracomment>Name of the preview for screen readers.</extracomment>
        <translation>Aperçu de la page</translation>
    </message>
    <message id="imageview.choose-page.slider-tip">
        <source>Drag to turn many pages quickly</source>
        <extracomment>Tooltip of the page slider.</extracomment>
        <translation>Faites glisser pour tourner vite beaucoup de pages</translation>
    </message>
    <message id="imageview.choose-page.slider-name">
        <source>Page slider</source>
        <extracomment>Name of the slider for screen readers.</extracomment>
        <translation>Curseur des pages</translation>
    </message>
    <message id="imageview.choose-page.prev-name">
        <source>Previous page</source>
        <extracomment>Name of the button for screen readers.</extracomment>
        <translation>Page précédente</translation>
    </message>
    <message id="imageview.choose-page.prev-tip">
        <source>Previous page (Page Up)</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Page précédente (Page haut)</translation>
    </message>
    <message id="imageview.choose-page.next-name">
        <source>Next page</source>
        <extracomment>Name of the button for screen readers.</extracomment>
        <translation>Page suivante</translation>
    </message>
    <message id="imageview.choose-page.next-tip">
        <source>Next page (Page Down)</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Page suivante (Page bas)</translation>
    </message>
    <message id="imageview.choose-page.field-label">
        <source>&amp;Page:</source>
        <extracomment>Label of the field into which a page number is typed.</extracomment>
        <translation>&amp;Page :</translation>
    </message>
    <message id="imageview.choose-page.field-tip">
        <source>Type a page number and press Return</source>
        <extracomment>Tooltip of the field.</extracomment>
        <translation>Saisissez un numéro de page et appuyez sur Entrée</translation>
    </message>
    <message id="imageview.choose-page.field-name">
        <source>Page number</source>
        <extracomment>Name of the field for screen readers.</extracomment>
        <translation>Numéro de page</translation>
    </message>
    <message id="imageview.choose-page.goto">
        <source>&amp;Go</source>
        <extracomment>The button that goes to the page whose number was typed.</extracomment>
        <translation>&amp;Aller</translation>
    </message>
    <message id="imageview.choose-page.goto-tip">
        <source>Show the page with the typed number</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Afficher la page dont le numéro est saisi</translation>
    </message>
    <message id="imageview.choose-page.cancel-tip">
        <source>Open no page and keep the present picture</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>N’ouvrir aucune page et garder l’image présente</translation>
    </message>
    <message id="imageview.choose-page.open">
        <source>&amp;Open</source>
        <extracomment>The button that opens the page shown.</extracomment>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message id="imageview.choose-page.open-tip">
        <source>Open the page shown as the picture</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Ouvrir la page affichée comme image</translation>
    </message>
</context>
</TS>
