#include "document/ExamplesMenu.h"

#include "document/ExampleDocuments.h"
#include "document/MyDocument.h"
#include "platform/Texts.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

ExamplesMenu::ExamplesMenu(MyDocument &document, QWidget *parent)
    : QMenu(texts::localized("document.command.examples"), parent)
    , m_document(document)
{
    setObjectName(QStringLiteral("examplesMenu"));
    connect(this, &QMenu::aboutToShow, this, &ExamplesMenu::fill);
}

bool ExamplesMenu::hasExamples() const
{
    const QDir folder(m_document.examplesFolder());
    const auto &examples = exampledocuments::all();
    return std::any_of(examples.begin(), examples.end(), [&folder](const auto &example) {
        return folder.exists(QLatin1String(example.file));
    });
}

void ExamplesMenu::fill()
{
    clear();
    const QDir folder(m_document.examplesFolder());
    for (const exampledocuments::Example &example : exampledocuments::all()) {
        const QString path = folder.filePath(QLatin1String(example.file));
        if (!QFileInfo::exists(path))
            continue;
        QAction *action = addAction(texts::localized(example.text));
        action->setObjectName(QLatin1String(example.file));
        connect(action, &QAction::triggered, &m_document,
                [this, path] { m_document.openCopy(path); });
    }
}
