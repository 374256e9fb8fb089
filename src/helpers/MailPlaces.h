#pragma once

#include "helpers/MailBoxes.h"

#include <string>
#include <vector>

namespace quillmere {

/// An inbox of the user's.
struct MailPlace {
    enum class Format { Maildir, Mbox };

    const char *program; ///< whose it is
    Format format;
    MailFlags flags;
    std::string path;
};

/// The inboxes there are, each once: those in the usual places for mail, which notmuch looks after
/// where it is set up, and those of mail programs.
std::vector<MailPlace> commonInboxes();
std::vector<MailPlace> programInboxes();

} // namespace quillmere
