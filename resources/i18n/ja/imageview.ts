<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="ErrorOccurred">
        <source>Something went wrong</source>
        <extracomment>Title of a message that explains why a picture cannot be opened or points cannot be taken.</extracomment>
        <translation>問題が起きました</translation>
    </message>
    <message id="CantMakeConverter">
        <source>The axis settings do not fit together, so points cannot be turned into values. Go back to the axis settings and check that the anchors do not coincide and that the axis values differ.</source>
        <extracomment>Explains why the digitizing page cannot take points.</extracomment>
        <translation>軸の設定に矛盾があり、点を値に変換できません。軸の設定に戻り、アンカーが重なっていないこと、軸の値が異なることを確認してください。</translation>
    </message>
    <message id="Trimming">
        <source>Trim the picture?</source>
        <extracomment>Title of the question after a rectangle was dragged to trim the picture to.</extracomment>
        <translation>画像をトリミングしますか？</translation>
    </message>
    <message id="TrimmingMsg">
        <source>Everything outside the dashed rectangle is cut off, and the axes go back to their first places. This cannot be undone; the picture file stays as it is.</source>
        <extracomment>Explains what trimming does.</extracomment>
        <translation>破線の枠の外側はすべて切り取られ、軸は最初の位置に戻ります。この操作は元に戻せません。画像ファイルは変わりません。</translation>
    </message>
    <message id="Trim">
        <source>Trim</source>
        <extracomment>Button: trims the picture.</extracomment>
        <translation>トリミング</translation>
    </message>
    <message id="imageview.error.missing">
        <source>“%1” could not be found. It may have been moved, renamed or deleted.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」が見つかりません。移動されたか、名前が変わったか、削除された可能性があります。</translation>
    </message>
    <message id="imageview.error.folder">
        <source>“%1” is a folder. Choose a picture file in it.</source>
        <extracomment>%1 is the name of the folder.</extracomment>
        <translation>「%1」はフォルダーです。その中の画像ファイルを選んでください。</translation>
    </message>
    <message id="imageview.error.unreadable">
        <source>“%1” cannot be read. Check that you have the permission to open it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」を読み取れません。開く権限があるか確認してください。</translation>
    </message>
    <message id="imageview.error.empty">
        <source>“%1” is empty. Get the file once more, then try again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」は空です。ファイルを入手し直してから、もう一度お試しください。</translation>
    </message>
    <message id="imageview.error.not-a-picture">
        <source>“%1” is not a picture that can be opened. Choose a PNG, JPEG, TIFF, BMP, GIF, WebP, SVG or PDF file.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」は開ける画像ではありません。PNG、JPEG、TIFF、BMP、GIF、WebP、SVG、PDF のいずれかのファイルを選んでください。</translation>
    </message>
    <message id="imageview.error.damaged">
        <source>“%1” is damaged or incomplete. Get the file once more, or save it anew in the program that made it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」は壊れているか不完全です。ファイルを入手し直すか、作成したプログラムで保存し直してください。</translation>
    </message>
    <message id="imageview.error.too-large">
        <source>“%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or save the picture with fewer pixels.</source>
        <extracomment>%1 is the name of the file, %2 its width and %3 its height.</extracomment>
        <translation>「%1」には空きより多くのメモリーが必要です (%2 × %3 ピクセル)。ほかのプログラムを終了するか、画像のピクセル数を減らして保存してください。</translation>
    </message>
    <message id="imageview.error.cancelled">
        <source>“%1” was not opened.</source>
        <extracomment>%1 is the name of the file; the user has stopped its reading.</extracomment>
        <translation>「%1」は開かれませんでした。</translation>
    </message>
    <message id="imageview.pasted.name">
        <source>pasted picture</source>
        <extracomment>Stands in place of a file name while a large pasted or dropped picture is read.</extracomment>
        <translation>貼り付けた画像</translation>
    </message>
    <message id="imageview.pasted.damaged">
        <source>The picture from the other program is damaged or incomplete. Copy or drag it once more, or save it to a file there and open that file.</source>
        <extracomment>A picture was pasted or dropped as data, not as a file.</extracomment>
        <translation>ほかのプログラムから受け取った画像は壊れているか不完全です。もう一度コピーまたはドラッグするか、そのプログラムでファイルに保存してから開いてください。</translation>
    </message>
    <message id="imageview.pasted.not-a-picture">
        <source>What the other program handed over cannot be read as a picture. Save it there as a PNG file and open that file.</source>
        <extracomment>Something was pasted or dropped as picture data, not as a file.</extracomment>
        <translation>ほかのプログラムから受け取った内容は画像として読み取れません。そのプログラムで PNG ファイルとして保存してから開いてください。</translation>
    </message>
    <message id="imageview.pasted.too-large">
        <source>The picture from the other program needs more memory than is free (%2 × %3 pixels). Close other programs, or copy it with fewer pixels.</source>
        <extracomment>A picture was pasted or dropped as data; %2 is its width and %3 its height.</extracomment>
        <translation>ほかのプログラムから受け取った画像には空きより多くのメモリーが必要です (%2 × %3 ピクセル)。ほかのプログラムを終了するか、ピクセル数を減らしてコピーしてください。</translation>
    </message>
    <message id="imageview.reading.label">
        <source>Opening “%1” …</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」を開いています …</translation>
    </message>
    <message id="imageview.reading.cancel-tip">
        <source>Stop opening this file and keep the present picture</source>
        <extracomment>Tooltip of the button that stops the reading of a large file.</extracomment>
        <translation>このファイルを開くのをやめ、現在の画像を残します</translation>
    </message>
    <message id="imageview.reading.progress-name">
        <source>Reading progress</source>
        <extracomment>Name of the progress bar for screen readers.</extracomment>
        <translation>読み込みの進行状況</translation>
    </message>
    <message id="imageview.view.name">
        <source>Picture of the chart</source>
        <extracomment>Name of the picture view for screen readers.</extracomment>
        <translation>グラフの画像</translation>
    </message>
    <message id="imageview.zoom-slider.name">
        <source>Zoom</source>
        <extracomment>Name of the zoom slider for screen readers.</extracomment>
        <translation>ズーム</translation>
    </message>
    <message id="imageview.zoom-slider.tip">
        <source>Zoom the picture</source>
        <extracomment>Tooltip of the zoom slider.</extracomment>
        <translation>画像を拡大または縮小します</translation>
    </message>
    <message id="PageOfTotal">
        <source>Page %1 of %2</source>
        <extracomment>In the panel that chooses a page of a PDF file: %1 is the number of the page shown, %2 how many there are.</extracomment>
        <translation>%1 / %2 ページ</translation>
    </message>
    <message id="imageview.error.not-a-pdf">
        <source>“%1” is not a PDF file, although its name says so. Get the file once more, or choose another one.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」は名前に反して PDF ファイルではありません。ファイルを入手し直すか、別のファイルを選んでください。</translation>
    </message>
    <message id="imageview.error.pdf-under-other-name">
        <source>“%1” is a PDF file under another name. Let its name end in “.pdf”, in small letters, and open it again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」は名前の異なる PDF ファイルです。名前の末尾を小文字の「.pdf」にして、もう一度開いてください。</translation>
    </message>
    <message id="imageview.error.no-pages">
        <source>“%1” has no pages. Choose another PDF file.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」にはページがありません。別の PDF ファイルを選んでください。</translation>
    </message>
    <message id="imageview.error.page-too-large">
        <source>The page of “%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or choose a smaller PDF reading scale.</source>
        <extracomment>%1 is the name of the file, %2 and %3 the width and height of the picture of its page.</extracomment>
        <translation>「%1」のページには空きより多くのメモリーが必要です (%2 × %3 ピクセル)。ほかのプログラムを終了するか、PDF の読み取り倍率を小さくしてください。</translation>
    </message>
    <message id="imageview.error.needs-password">
        <source>“%1” is locked with a password. Open it once more and type the password.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」はパスワードで保護されています。もう一度開いてパスワードを入力してください。</translation>
    </message>
    <message id="imageview.error.unknown-protection">
        <source>“%1” is protected in a way that is not supported. Save it without protection in the program that made it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>「%1」は対応していない方法で保護されています。作成したプログラムで、保護せずに保存してください。</translation>
    </message>
    <message id="imageview.error.pdf-module-missing">
        <source>“%1” cannot be opened because the part of Curvegrab X that knows PDF files is missing. Please install the program again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>Curvegrab X の PDF ファイルを読み込む部分が見つからないため、「%1」を開けません。プログラムをもう一度インストールしてください。</translation>
    </message>
    <message id="imageview.pdf.password-title">
        <source>“%1” is locked with a password</source>
        <extracomment>%1 is the name of the PDF file. Title of the sheet that asks for its password.</extracomment>
        <translation>「%1」はパスワードで保護されています</translation>
    </message>
    <message id="imageview.pdf.password-text">
        <source>Type the password to open the file.</source>
        <extracomment>In the sheet that asks for the password of a PDF file.</extracomment>
        <translation>ファイルを開くにはパスワードを入力してください。</translation>
    </message>
    <message id="imageview.pdf.password-was-wrong">
        <source>This password is not the right one. Check the Caps Lock key and type it again.</source>
        <extracomment>In the sheet that asks for the password of a PDF file, after a wrong one.</extracomment>
        <translation>パスワードが違います。Caps Lock キーを確認して、もう一度入力してください。</translation>
    </message>
    <message id="imageview.choose-page.title">
        <source>Choose a Page of “%1”</source>
        <extracomment>Title of the panel that chooses a page of a PDF file: %1 is the name of the file.</extracomment>
        <translation>「%1」のページを選択</translation>
    </message>
    <message id="imageview.choose-page.rendering">
        <source>Painting the page …</source>
        <extracomment>Shown in place of the preview of a page that takes long.</extracomment>
        <translation>ページを描いています …</translation>
    </message>
    <message id="imageview.choose-page.unreadable">
        <source>This page cannot be shown.</source>
        <extracomment>Shown in place of the preview of a damaged page.</extracomment>
        <translation>このページは表示できません。</translation>
    </message>
    <message id="imageview.choose-page.view-tip">
        <source>Turn pages with the wheel; double-click to open this one</source>
        <extracomment>Tooltip of the preview of a page.</extracomment>
        <translation>ホイールでページをめくり、ダブルクリックでこのページを開きます</translation>
    </message>
    <message id="imageview.choose-page.view-name">
        <source>Preview of the page</source>
        <extracomment>Name of the preview for screen readers.</extracomment>
        <translation>ページのプレビュー</translation>
    </message>
    <message id="imageview.choose-page.slider-tip">
        <source>Drag to turn many pages quickly</source>
        <extracomment>Tooltip of the page slider.</extracomment>
        <translation>ドラッグすると多くのページを素早くめくれます</translation>
    </message>
    <message id="imageview.choose-page.slider-name">
        <source>Page slider</source>
        <extracomment>Name of the slider for screen readers.</extracomment>
        <translation>ページスライダー</translation>
    </message>
    <message id="imageview.choose-page.prev-name">
        <source>Previous page</source>
        <extracomment>Name of the button for screen readers.</extracomment>
        <translation>前のページ</translation>
    </message>
    <message id="imageview.choose-page.prev-tip">
        <source>Previous page (Page Up)</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>前のページ (Page Up)</translation>
    </message>
    <message id="imageview.choose-page.next-name">
        <source>Next page</source>
        <extracomment>Name of the button for screen readers.</extracomment>
        <translation>次のページ</translation>
    </message>
    <message id="imageview.choose-page.next-tip">
        <source>Next page (Page Down)</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>次のページ (Page Down)</translation>
    </message>
    <message id="imageview.choose-page.field-label">
        <source>&amp;Page:</source>
        <extracomment>Label of the field into which a page number is typed.</extracomment>
        <translation>ページ(&amp;P):</translation>
    </message>
    <message id="imageview.choose-page.field-tip">
        <source>Type a page number and press Return</source>
        <extracomment>Tooltip of the field.</extracomment>
        <translation>ページ番号を入力して Enter キーを押します</translation>
    </message>
    <message id="imageview.choose-page.field-name">
        <source>Page number</source>
        <extracomment>Name of the field for screen readers.</extracomment>
        <translation>ページ番号</translation>
    </message>
    <message id="imageview.choose-page.goto">
        <source>&amp;Go</source>
        <extracomment>The button that goes to the page whose number was typed.</extracomment>
        <translation>移動(&amp;G)</translation>
    </message>
    <message id="imageview.choose-page.goto-tip">
        <source>Show the page with the typed number</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>入力した番号のページを表示します</translation>
    </message>
    <message id="imageview.choose-page.cancel-tip">
        <source>Open no page and keep the present picture</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>どのページも開かず、現在の画像を残します</translation>
    </message>
    <message id="imageview.choose-page.open">
        <source>&amp;Open</source>
        <extracomment>The button that opens the page shown.</extracomment>
        <translation>開く(&amp;O)</translation>
    </message>
    <message id="imageview.choose-page.open-tip">
        <source>Open the page shown as the picture</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>表示中のページを画像として開きます</translation>
    </message>
</context>
</TS>
