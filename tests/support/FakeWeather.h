#pragma once

#include "platform/Geocoder.h"
#include "platform/Keychain.h"
#include "platform/LocationManager.h"
#include "platform/Reachability.h"
#include "support/ManualRunLoop.h"

#include "platform/Listeners.h"

#include <optional>

namespace quillmere {

/// A location manager that the test decides for.
class FakeLocationManager : public LocationManager
{
public:
    void setDelegate(LocationManagerDelegate *delegate) override { delegate_ = delegate; }
    void setDesiredAccuracy(double metres) override { accuracy = metres; }
    AuthorizationStatus authorizationStatus() const override { return status; }
    void requestAlwaysAuthorization() override { ++prompts; }
    void startUpdatingLocation() override
    {
        ++starts;
        isUpdating = true;
    }
    void stopUpdatingLocation() override { isUpdating = false; }

    void decide(AuthorizationStatus decision)
    {
        status = decision;
        delegate_->locationManagerDidChangeAuthorization();
    }
    void find(const QList<Location> &locations)
    {
        delegate_->locationManagerDidUpdateLocations(locations);
    }
    void fail(const QString &text) { delegate_->locationManagerDidFailWithError(text); }

    AuthorizationStatus status = AuthorizationStatus::NotDetermined;
    double accuracy = 0;
    int prompts = 0;
    int starts = 0;
    bool isUpdating = false;

private:
    LocationManagerDelegate *delegate_ = nullptr;
};

/// Answers on the next turn of the loop.
class FakeGeocoder : public Geocoder
{
public:
    explicit FakeGeocoder(ManualRunLoop &runLoop)
        : runLoop_(runLoop)
    {
    }
    Task reverseGeocode(double, double,
                        std::function<void(const std::optional<Placemark> &)> done) override
    {
        ++questions;
        return runLoop_.after({}, [this, done = std::move(done)] { done(placemark); });
    }

    std::optional<Placemark> placemark = Placemark{QStringLiteral("London"), {}};
    int questions = 0;

private:
    ManualRunLoop &runLoop_;
};

/// Answers on the next turn of the loop, or waits for its user.
class FakeKeychain : public Keychain
{
public:
    explicit FakeKeychain(ManualRunLoop &runLoop)
        : runLoop_(runLoop)
    {
    }
    Task read(const QString &service, const QString &account,
              std::function<void(const Secret &)> done) override
    {
        reads.append(service + u'/' + account);
        waiting_ = std::move(done);
        return isWaiting ? Task() : runLoop_.after({}, [this] { answer(); });
    }
    Task write(const QString &service, const QString &account, const QString &text,
               Done done) override
    {
        return change(QStringLiteral("write ") + service + u'/' + account, std::move(done),
                      [this, text] { secret = text; });
    }
    Task remove(const QString &service, const QString &account, Done done) override
    {
        return change(QStringLiteral("remove ") + service + u'/' + account, std::move(done),
                      [this] {
                          secret = tl::unexpected(KeychainError{KeychainError::Kind::NotFound, {}});
                      });
    }
    Task watchKeyring(std::function<void(const KeyringStatus &)>) override { return {}; }
    void answer()
    {
        if (const auto done = std::exchange(waiting_, nullptr))
            done(secret);
    }

    Secret secret = tl::unexpected(KeychainError{KeychainError::Kind::NotFound, {}});
    bool isWaiting = false;
    std::optional<KeychainError> refusal{}; ///< of every change
    QStringList reads;
    QStringList changes;

private:
    Task change(const QString &what, Done done, std::function<void()> apply)
    {
        changes.append(what);
        return runLoop_.after({}, [this, done = std::move(done), apply = std::move(apply)] {
            if (refusal)
                return done(tl::unexpected(*refusal));
            apply();
            done({});
        });
    }

    ManualRunLoop &runLoop_;
    std::function<void(const Secret &)> waiting_;
};

class FakeReachability : public Reachability
{
public:
    Task onReturn(std::function<void()> listener) override
    {
        return listeners_.add(std::move(listener));
    }
    void comeBack() { listeners_.notify(); }

private:
    Listeners<> listeners_;
};

} // namespace quillmere
