#pragma once

#include <QCache>
#include <QColor>
#include <QHash>
#include <QImage>
#include <QSet>
#include <QStringList>

namespace quillmere {

/// The glyphs of the system symbols: each symbol name stands for one symbolic icon, drawn as a
/// vector at exactly the pixels asked for and tinted with one colour. An icon is looked for in our
/// own small theme, which is part of the program, and then in the installed Adwaita theme.
///
/// A name without a glyph draws a visible placeholder and is logged once. Main thread only.
class Glyphs
{
public:
    /// Looks in the desktop's data directories.
    Glyphs();
    /// Looks in `iconDirs` only, each a theme's directory, in order.
    explicit Glyphs(QStringList iconDirs);

    static Glyphs &shared();

    /// A square image of `size` device pixels a side. Opacities inside the icon are kept.
    QImage image(const QString &symbol, int size, const QColor &tint);

    /// Whether the symbol draws as itself.
    bool contains(const QString &symbol);

    /// The name of the symbol's icon in its theme, for others to look up; empty: it has none.
    static QString iconName(const QString &symbol);

private:
    QByteArray source(const QString &symbol);
    QString filePath(const QString &icon) const;
    void reportMissing(const QString &symbol);

    QStringList iconDirs_;
    QHash<QString, QByteArray> sources_; ///< of the names in the table only, so it is bounded
    QCache<QString, QImage> images_;     ///< cost in KiB
    QSet<QString> reported_;
};

} // namespace quillmere
