#pragma once

#include "platform/Task.h"
#include "weather/PlaceSearch.h"
#include "weather/WeatherData.h"

#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class RunLoop;
class SettingsStore;
class TypedPlace;
class WeatherService;

/// The weather as the island's scene reads it, in the unit the user reads, and the search for a
/// place.
class WeatherModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool hasWeather READ hasWeather NOTIFY weatherChanged FINAL)
    Q_PROPERTY(QString temperature READ temperature NOTIFY weatherChanged FINAL)
    Q_PROPERTY(QString feelsLike READ feelsLike NOTIFY weatherChanged FINAL)
    Q_PROPERTY(QString condition READ condition NOTIFY weatherChanged FINAL)
    Q_PROPERTY(QString place READ place NOTIFY weatherChanged FINAL)
    Q_PROPERTY(QString range READ range NOTIFY weatherChanged FINAL)
    Q_PROPERTY(QVariantList details READ details NOTIFY weatherChanged FINAL)
    Q_PROPERTY(QVariantList hours READ hours NOTIFY weatherChanged FINAL)
    Q_PROPERTY(QString source READ source NOTIFY sourceChanged FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY weatherChanged FINAL)

    Q_PROPERTY(QString explanation READ explanation NOTIFY explanationChanged FINAL)

    Q_PROPERTY(bool searching READ isSearching NOTIFY searchingChanged FINAL)
    Q_PROPERTY(QVariantList places READ places NOTIFY placesChanged FINAL)
    Q_PROPERTY(QString searchNote READ searchNote NOTIFY placesChanged FINAL)
    Q_PROPERTY(bool placeIsTyped READ placeIsTyped NOTIFY searchingChanged FINAL)

public:
    WeatherModel(RunLoop &runLoop, SettingsStore &settings, WeatherService &service,
                 TypedPlace &place, PlaceSearch &search, QObject *parent = nullptr);

    /// Whether the page is on show: only then it follows the clock, and only then there is a
    /// search.
    void setWatched(bool watched);

    bool hasWeather() const;
    QString temperature() const;
    QString feelsLike() const; ///< "feels like 19°"; empty: unknown
    QString condition() const;
    QString place() const;
    QString range() const;        ///< of today: "H 24° L 14°"; empty: unknown
    QVariantList details() const; ///< maps of name and value; unknown ones are left out
    QVariantList hours() const;   ///< maps of hour, symbol, color and temperature
    QString source() const;       ///< where it comes from and how old it is
    QString accessibleText() const;

    /// Why there is no weather; empty: there is.
    QString explanation() const;

    bool isSearching() const { return isSearching_; }
    QVariantList places() const; ///< maps of name and region
    QString searchNote() const
    {
        return searchNote_;
    } ///< why there are none; empty: nothing to say
    bool placeIsTyped() const;

    Q_INVOKABLE void openSearch();
    Q_INVOKABLE void closeSearch();
    Q_INVOKABLE void search(const QString &text);
    Q_INVOKABLE void choosePlace(int index);
    Q_INVOKABLE void useOwnLocation(); ///< in place of the typed one

Q_SIGNALS:
    void weatherChanged();
    void sourceChanged();
    void explanationChanged();
    void searchingChanged();
    void placesChanged();

private:
    void setSearching(bool searching);
    void found(const PlaceSearch::Result &result);
    void setPlaces(const QList<FoundPlace> &places, const QString &note);
    void followClock();
    QString degrees(double celsius, double fahrenheit) const;
    const WeatherData &weather() const;

    RunLoop &runLoop_;
    SettingsStore &settings_;
    WeatherService &service_;
    TypedPlace &place_;
    PlaceSearch &search_;

    bool isSearching_ = false;
    QList<FoundPlace> places_;
    QString searchNote_;
    Task typingPause_;
    bool watched_ = false;
    Task nextMinute_;
};

} // namespace quillmere
