#pragma once

#include "capture/CaptureSurroundings.h"
#include "document/DocumentContents.h"
#include "exchange/ExchangeFacts.h"

#include <QString>

class MyDocument;

/// What a document tells other programs.
namespace documentexchange {

/// The facts of the document called `name`, with these of its series.
[[nodiscard]] ExchangeFacts factsOf(const DocumentContents &contents, const IndexSet &series,
                                    const QString &name);

/// The same of a document in its window, as it is now.
[[nodiscard]] ExchangeFacts factsOf(const MyDocument &document, const IndexSet &series);

} // namespace documentexchange
