// Opens the document whose path it is given first, and changes and saves it until it is killed; its
// state is in the folder that it is given second. A line tells when it begins to save.
#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "document/DocumentController.h"
#include "document/DocumentWindow.h"
#include "document/MyDocument.h"
#include "endurance/CountedDocument.h"
#include "platform/TextField.h"
#include "platform/UserDefaults.h"
#include "prefs/CurvegrabPrefs.h"
#include "ui_MyDocument.h"

#include <QApplication>
#include <QDir>
#include <QTest>
#include <QTranslator>

#include <cstdio>

namespace {

void countOn(MyDocument &document)
{
    Ui::MyDocument &ui = document.window().ui();
    const int count = static_cast<int>(ui.initialXTextField->doubleValue()) + 1;
    ui.initialXTextField->setDoubleValue(count);
    if (document.dataSeries().currentIndex() >= counteddocument::mostPoints) {
        document.selectAll();
        document.deleteSelection();
    }
    document.dataSeries().appendData(counteddocument::point(count),
                                     document.cursorGuide().converter());
    document.undoManager().closeGroup();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QTranslator texts;
    if (!texts.load(QStringLiteral(":/i18n/curvegrab_en.qm")))
        return 1;
    QCoreApplication::installTranslator(&texts);
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    UserDefaults defaults(folder.filePath(QStringLiteral("settings.json")));
    CurvegrabPrefs prefs(defaults);
    prefs.awakeFromNib();
    DocumentController controller(prefs, folder.path());
    controller.openFiles({QString::fromLocal8Bit(argv[1])});
    MyDocument &document = *controller.documents().front();
    const auto isReady = [&document] { return document.hasImage() && document.fileStamp(); };
    if (!QTest::qWaitFor(isReady, 20'000))
        return 1;
    std::puts("saving");
    std::fflush(stdout);
    for (;;) {
        countOn(document);
        document.saveDocument();
        while (document.isDocumentEdited())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}
