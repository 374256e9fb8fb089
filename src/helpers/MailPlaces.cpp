#include "helpers/MailPlaces.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <pwd.h>
#include <unistd.h>

namespace quillmere {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostFolders = 200; // looked at in one folder

std::string variable(const char *name)
{
    const char *value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::string home()
{
    return variable("HOME");
}

std::string dataHome()
{
    const std::string given = variable("XDG_DATA_HOME");
    return given.starts_with('/') ? given : home() + "/.local/share";
}

std::string spool()
{
    const passwd *user = ::getpwuid(::geteuid());
    return user != nullptr ? std::string("/var/mail/") + user->pw_name : std::string();
}

std::vector<std::string> foldersIn(const std::string &path)
{
    std::vector<std::string> folders;
    std::error_code error;
    for (fs::directory_iterator entry(path, error), end;
         !error && entry != end && folders.size() < mostFolders; entry.increment(error)) {
        std::error_code unreadable;
        if (entry->is_directory(unreadable))
            folders.push_back(entry->path());
    }
    std::ranges::sort(folders);
    return folders;
}

/// Inboxes that have been found, by where they really are.
class Collection
{
public:
    void addMaildir(const char *program, const std::string &path,
                    MailFlags flags = MailFlags::InName)
    {
        if (isMaildir(path))
            add({program, MailPlace::Format::Maildir, flags, path});
    }
    void addMbox(const char *program, const std::string &path)
    {
        std::error_code error;
        if (fs::is_regular_file(path, error))
            add({program, MailPlace::Format::Mbox, MailFlags::InHeader, path});
    }
    std::vector<MailPlace> take() { return std::move(places_); }

private:
    void add(MailPlace place)
    {
        std::error_code error;
        const std::string real = fs::canonical(place.path, error);
        if (error || std::ranges::find(found_, real) != found_.end())
            return;
        found_.push_back(real);
        places_.push_back(std::move(place));
    }

    std::vector<MailPlace> places_;
    std::vector<std::string> found_;
};

void addInboxesOf(const std::string &account, Collection &places)
{
    for (const char *name : {"INBOX", "Inbox", "inbox", ".INBOX"})
        places.addMaildir("Maildir", account + '/' + name);
}

/// A Maildir with further ones in folders that begin with a dot: it is the inbox of the account.
bool isAccount(const std::string &path)
{
    return isMaildir(path) && std::ranges::any_of(foldersIn(path), [](const std::string &folder) {
               return fs::path(folder).filename().string().front() == '.' && isMaildir(folder);
           });
}

void addMaildirs(const std::string &root, Collection &places)
{
    if (root.empty())
        return;
    places.addMaildir("Maildir", root);
    addInboxesOf(root, places);
    for (const std::string &folder : foldersIn(root)) {
        if (fs::path(folder).filename().string().front() == '.')
            continue;
        addInboxesOf(folder, places);
        if (isAccount(folder))
            places.addMaildir("Maildir", folder);
    }
}

void addThunderbird(const std::string &root, Collection &places)
{
    for (const std::string &profile : foldersIn(root)) {
        for (const char *kind : {"/Mail", "/ImapMail"}) {
            for (const std::string &account : foldersIn(profile + kind)) {
                for (const char *name : {"/Inbox", "/INBOX"}) {
                    places.addMbox("Thunderbird", account + name);
                    places.addMaildir("Thunderbird", account + name, MailFlags::InHeader);
                }
            }
        }
    }
}

} // namespace

std::vector<MailPlace> commonInboxes()
{
    Collection places;
    for (const char *name : {"MAILDIR", "MAIL"})
        addMaildirs(variable(name), places);
    for (const char *folder : {"/Maildir", "/.maildir", "/Mail", "/mail", "/.mail"})
        addMaildirs(home() + folder, places);
    addMaildirs(dataHome() + "/mail", places);
    return places.take();
}

std::vector<MailPlace> programInboxes()
{
    Collection places;
    for (const char *folder :
         {"/.thunderbird", "/.icedove", "/snap/thunderbird/common/.thunderbird",
          "/.var/app/org.mozilla.Thunderbird/.thunderbird"})
        addThunderbird(home() + folder, places);
    places.addMaildir("Evolution", dataHome() + "/evolution/mail/local");
    places.addMaildir("Evolution",
                      home() + "/.var/app/org.gnome.Evolution/data/evolution/mail/local");
    const std::string given = variable("MAIL");
    places.addMbox("mbox", given.empty() ? spool() : given);
    return places.take();
}

} // namespace quillmere
