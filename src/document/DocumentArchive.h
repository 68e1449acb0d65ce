#pragma once

#include "archiving/ArchiveTree.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class ArchivedPicture;

/// The bytes of a document file: the archive tree as one CBOR item. docs/file-format.md tells
/// strangers how to read it. Needs no window and no display; a picture stays encoded.
namespace documentarchive {

/// What is wrong with a file.
enum class Fault {
    NoDocument,      ///< the file does not begin like a document
    EndsEarly,       ///< bytes are missing at the end
    Unreadable,      ///< what stands there is no CBOR that the format knows
    TooLarge,        ///< more values, or deeper ones, than any document has
    RepeatedKey,     ///< a key stands twice in one dictionary; the first one counts
    BadObject,       ///< a point, a converter or a picture does not have the values that it needs
    BadReference,    ///< a reference to an object that is not there
    WrongKind,       ///< a value of another kind than its key needs
    TrailingBytes,   ///< something follows the end of the document
    DamagedPicture,  ///< the picture cannot be decoded; found only by those who decode it
    PictureTooLarge, ///< there is not enough memory to decode the picture
};

/// One fault and where it is.
struct Damage
{
    Fault fault = Fault::Unreadable;
    std::string part; ///< the key of the root dictionary that it concerns; empty: the whole file
    std::int64_t offset = 0; ///< bytes from the start of the file, as near as known

    friend bool operator==(const Damage &, const Damage &) = default;
};

/// What could be read. Without damage `root` is the whole document; otherwise it has the parts that
/// could be saved, each as far as it could be read.
struct Reading
{
    ArchiveDictionary root;
    std::vector<Damage> damages;

    [[nodiscard]] bool isWhole() const { return damages.empty(); }
};

/// The file's bytes. An object that stands at several places of the tree is written once.
[[nodiscard]] QByteArray archivedData(const ArchiveDictionary &root);

/// What becomes of pictures: without their pixels they are not copied, and still tell their size.
enum class Pixels { Kept, LeftOut };

/// Reads a file of any content, however damaged or hostile.
[[nodiscard]] Reading unarchived(const QByteArray &bytes, Pixels pixels = Pixels::Kept);

/// The picture of a document; null without one.
[[nodiscard]] std::shared_ptr<const ArchivedPicture> pictureIn(const ArchiveDictionary &root);

/// Leaves the picture out, and all else as it is.
void dropPicture(ArchiveDictionary &root);

/// Whether a damaged reading still holds something worth offering: a picture or a point.
[[nodiscard]] bool offersSomething(const ArchiveDictionary &root);

/// The damage in the user's words, one sentence per kind of fault and part.
[[nodiscard]] QString description(const std::vector<Damage> &damages);

} // namespace documentarchive
