#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <tl/expected.hpp>

#include <optional>
#include <vector>

namespace quillmere {

/// A release that a feed announces.
struct Update {
    QString version;        ///< compared: numbers between dots
    QString visibleVersion; ///< shown
    QString title;          ///< one line of plain text
    QUrl link;              ///< the release's page; always https
};

/// The releases of an appcast that this program can offer: of no other system, of the default
/// channel, with a version and a page. Feeds come from outside: one with a document type, nested or
/// long beyond reason, or broken off is an error, whose text says why.
tl::expected<std::vector<Update>, QString> parseAppcast(const QByteArray &xml);

/// The release with the highest version, if that is above `installed`. Feeds have no order.
std::optional<Update> newestAbove(const QString &installed, const std::vector<Update> &updates);

/// Whether a text is numbers between dots.
bool isVersion(QStringView text);

/// Compares number by number; a missing one is 0. Below, equal to or above 0 as `a` is to `b`.
/// Both are versions.
int compareVersions(QStringView a, QStringView b);

} // namespace quillmere
