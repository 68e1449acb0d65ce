#pragma once

#include <QString>

class GraphImageView;

/// The picture view as screen readers see it: a graphic whose value is where its pointer stands.
namespace accessiblepicture {

/// Makes screen readers see picture views so; more than once is as good as once.
void install();

/// What a screen reader says the value of `view` is, in words; it is told if that is new.
void setValue(GraphImageView &view, const QString &value);

} // namespace accessiblepicture
