// How the application opens a copy of a document: an untitled one, whose file stays as it is.
#include "document/DocumentController.h"

#include "document/DocumentTypes.h"
#include "document/DocumentWindow.h"
#include "document/ExampleDocuments.h"
#include "document/MyDocument.h"

#include <QCoreApplication>
#include <QFile>

QString DocumentController::examplesFolder() const
{
    return exampledocuments::folderFor(QCoreApplication::applicationDirPath());
}

void DocumentController::openCopy(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(path, file.errorString());
        return;
    }
    MyDocument &document = documentForOpening();
    if (!document.loadDataRepresentation(file.readAll(),
                                         QLatin1String(documenttypes::curvegrabDocument))) {
        offerRemains(document, path);
        return;
    }
    if (document.window().isVisible())
        document.showLoaded();
    else
        document.showWindow();
    document.raise();
}
