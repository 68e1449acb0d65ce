#pragma once

#include "imageview/BackgroundReading.h"
#include "imageview/PictureReadAhead.h"
#include "imageview/PictureReader.h"

#include <functional>
#include <memory>
#include <optional>

/// Opens pictures without holding up the window: small ones at once, large ones in a thread
/// of their own, with a progress panel after half a second.
class PictureOpener
{
public:
    using Handler = std::function<void(const PictureReading &)>;

    /// The progress panel is shown over `progressHost`.
    explicit PictureOpener(QWidget &progressHost);

    /// What came of a small picture; for a large one nothing yet, and `finished` is called later,
    /// unless another one is opened before. A reading in progress is given up.
    [[nodiscard]] std::optional<PictureReading> open(const PictureSource &source,
                                                     const Handler &finished);

    /// Takes a reading that was begun before: the next open() uses it, if it is of the same file.
    void expect(std::shared_ptr<PictureReadAhead> ahead);

    /// Gives up the reading in progress; its handler is told so.
    void cancel();

private:
    void begin(const PictureSource &source, const Handler &finished,
               const std::shared_ptr<const PictureReadAhead> &ahead);
    [[nodiscard]] std::shared_ptr<const PictureReadAhead> aheadOf(const PictureSource &source);

    BackgroundReading m_reading;
    std::shared_ptr<PictureReadAhead> m_ahead; ///< null: nothing is expected
};
