#include "app/Appcast.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace quillmere {

namespace {

constexpr QLatin1StringView feedNamespace{"http://www.andymatuschak.org/xml-namespaces/sparkle"};
constexpr QLatin1StringView ownSystem{"linux"};

constexpr qsizetype largestFeed = 1'048'576; // bytes
constexpr int deepest = 32;                  // elements inside each other
constexpr int mostItems = 1000;
constexpr qsizetype longestVersion = 64;
constexpr qsizetype longestTitle = 200;
constexpr qsizetype longestLink = 2048;

/// The fields of an item as they stand in the feed.
struct Item {
    QString version;
    QString enclosureVersion;
    QString visibleVersion;
    QString enclosureVisibleVersion;
    QString title;
    QString link;
    QString channel;
    QString system;
};

class AppcastReader
{
public:
    explicit AppcastReader(const QByteArray &xml)
        : xml_(xml)
    {
        // There are no entities without a document type; this holds even if that slipped through.
        xml_.setEntityExpansionLimit(0);
    }

    tl::expected<std::vector<Item>, QString> read()
    {
        while (error_.isEmpty() && !xml_.atEnd())
            take(xml_.readNext());
        if (error_.isEmpty() && xml_.hasError())
            error_ = xml_.errorString();
        if (error_.isEmpty() && !isFeed_)
            error_ = QStringLiteral("not an RSS feed");
        if (!error_.isEmpty())
            return tl::unexpected(error_);
        return items_;
    }

private:
    void take(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::DTD:
            error_ = QStringLiteral("has a document type");
            break;
        case QXmlStreamReader::StartElement:
            enter();
            break;
        case QXmlStreamReader::Characters:
            if (text_)
                text_->append(xml_.text());
            break;
        case QXmlStreamReader::EndElement:
            leave();
            break;
        default:
            break;
        }
    }

    void enter()
    {
        text_ = nullptr;
        ++depth_;
        if (depth_ > deepest)
            error_ = QStringLiteral("is nested too deeply");
        else if (depth_ == 1)
            isFeed_ = xml_.name() == QLatin1StringView("rss");
        else if (depth_ == 3 && xml_.name() == QLatin1StringView("item") && isPlain())
            startItem();
        else if (depth_ == 4 && isInItem_)
            startField();
    }

    void startItem()
    {
        if (items_.size() >= mostItems)
            error_ = QStringLiteral("has too many items");
        items_.emplace_back();
        isInItem_ = true;
    }

    void startField()
    {
        Item &item = items_.back();
        if (isPlain() && xml_.name() == QLatin1StringView("enclosure"))
            return readEnclosure(item);
        const struct {
            bool isPlain;
            QLatin1StringView name;
            QString &text;
        } fields[] = {
            {true, QLatin1StringView("title"), item.title},
            {true, QLatin1StringView("link"), item.link},
            {false, QLatin1StringView("version"), item.version},
            {false, QLatin1StringView("shortVersionString"), item.visibleVersion},
            {false, QLatin1StringView("channel"), item.channel},
        };
        for (const auto &[plain, name, text] : fields) {
            if (xml_.name() == name && (plain ? isPlain() : isOfFeed()))
                text_ = &text;
        }
    }

    void readEnclosure(Item &item)
    {
        const auto attributes = xml_.attributes();
        const auto value = [&attributes](QLatin1StringView name) {
            return attributes.value(QString(feedNamespace), name).toString();
        };
        item.system = value(QLatin1StringView("os"));
        item.enclosureVersion = value(QLatin1StringView("version"));
        item.enclosureVisibleVersion = value(QLatin1StringView("shortVersionString"));
    }

    void leave()
    {
        text_ = nullptr;
        if (depth_ == 3)
            isInItem_ = false;
        --depth_;
    }

    bool isPlain() const { return xml_.namespaceUri().isEmpty(); }
    bool isOfFeed() const { return xml_.namespaceUri() == feedNamespace; }

    QXmlStreamReader xml_;
    QString error_;
    std::vector<Item> items_;
    QString *text_ = nullptr; ///< of the field that is being read
    int depth_ = 0;
    bool isFeed_ = false;
    bool isInItem_ = false;
};

std::optional<Update> toUpdate(const Item &item)
{
    const QString version =
        (item.version.isEmpty() ? item.enclosureVersion : item.version).trimmed();
    const QString visible =
        (item.visibleVersion.isEmpty() ? item.enclosureVisibleVersion : item.visibleVersion)
            .simplified();
    const QString system = item.system.trimmed();
    const QUrl link(item.link.trimmed().left(longestLink), QUrl::StrictMode);
    if (!isVersion(version) || !item.channel.trimmed().isEmpty())
        return std::nullopt;
    if (!system.isEmpty() && system.compare(ownSystem, Qt::CaseInsensitive) != 0)
        return std::nullopt;
    if (!link.isValid() || link.scheme() != QLatin1StringView("https") || link.host().isEmpty())
        return std::nullopt;
    return Update{version, (visible.isEmpty() ? version : visible).left(longestVersion),
                  item.title.simplified().left(longestTitle), link};
}

int sign(int value)
{
    return (value > 0) - (value < 0);
}

/// The number at the front of `text`, without leading zeros, so that longer is larger.
QStringView takeNumber(QStringView &text)
{
    const qsizetype dot = text.indexOf(u'.');
    QStringView number = dot < 0 ? text : text.first(dot);
    text = dot < 0 ? QStringView() : text.sliced(dot + 1);
    while (number.startsWith(u'0'))
        number = number.sliced(1);
    return number;
}

} // namespace

tl::expected<std::vector<Update>, QString> parseAppcast(const QByteArray &xml)
{
    if (xml.size() > largestFeed)
        return tl::unexpected(QStringLiteral("is too large"));
    return AppcastReader(xml).read().map([](const std::vector<Item> &items) {
        std::vector<Update> updates;
        for (const Item &item : items) {
            if (auto update = toUpdate(item))
                updates.push_back(std::move(*update));
        }
        return updates;
    });
}

std::optional<Update> newestAbove(const QString &installed, const std::vector<Update> &updates)
{
    const auto newest = std::ranges::max_element(
        updates, [](const QString &a, const QString &b) { return compareVersions(a, b) < 0; },
        &Update::version);
    if (newest == updates.end() || compareVersions(newest->version, installed) <= 0)
        return std::nullopt;
    return *newest;
}

bool isVersion(QStringView text)
{
    if (text.size() > longestVersion)
        return false;
    const auto parts = text.split(u'.');
    return std::ranges::all_of(parts, [](QStringView part) {
        return !part.isEmpty() &&
               std::ranges::all_of(part, [](QChar c) { return c >= u'0' && c <= u'9'; });
    });
}

int compareVersions(QStringView a, QStringView b)
{
    while (!a.isEmpty() || !b.isEmpty()) {
        const QStringView left = takeNumber(a);
        const QStringView right = takeNumber(b);
        if (left.size() != right.size())
            return left.size() < right.size() ? -1 : 1;
        if (const int order = left.compare(right))
            return sign(order);
    }
    return 0;
}

} // namespace quillmere
