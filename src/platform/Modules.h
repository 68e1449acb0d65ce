#pragma once

#include <QObject>
#include <QString>

/// The parts of the program that are libraries of their own, so that what they are linked with is
/// not loaded before somebody wants it.
namespace modules {

/// The folder of the modules that belong to a program in `programFolder`.
[[nodiscard]] QString folderFor(const QString &programFolder);

/// Where modules are looked for: the folder of the running program's, unless another one was set.
[[nodiscard]] QString folder();
/// For programs that lie elsewhere; before anything is loaded.
void setFolder(const QString &folder);

/// What the module `name` in `folder` hands out, which stays as long as the program; null where it
/// is missing or is no module. May be called in any thread.
[[nodiscard]] QObject *root(const QString &folder, const QString &name);

/// The same as `Interface`; null as well where the module is none of this program.
template <typename Interface>
[[nodiscard]] Interface *find(const QString &folder, const QString &name)
{
    return qobject_cast<Interface *>(root(folder, name));
}

} // namespace modules
