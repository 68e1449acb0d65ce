#pragma once

#include <QString>

#include <utility>

class PlotViewMaker;

/// The module that draws plots, a library of its own in a folder of the installation.
class PlotModule
{
public:
    /// Looks for it in `folder`, at the first use.
    explicit PlotModule(QString folder)
        : m_folder(std::move(folder))
    {}

    /// The folder that belongs to a program in `programFolder`.
    [[nodiscard]] static QString folderFor(const QString &programFolder);

    /// What makes views; null where the module is missing or is none of this program.
    [[nodiscard]] PlotViewMaker *maker();
    [[nodiscard]] const QString &folder() const { return m_folder; }

private:
    QString m_folder;
    PlotViewMaker *m_maker = nullptr; // owned by the module, which stays loaded
};
