#pragma once

#include "google/AuthError.h"
#include "google/AuthRequest.h"
#include "platform/HttpClient.h"

#include <functional>

namespace quillmere {

/// An answer of the token endpoint.
struct TokenResponse {
    QString accessToken;
    std::optional<double> expiresIn{}; ///< seconds
    std::optional<QString> refreshToken{};
    std::optional<QString> idTokenEmail{};
};

using TokenResult = tl::expected<TokenResponse, AuthError>;

/// Asks the token endpoint. `done` gets the outcome once, never from within the call; destroying
/// the Task gives up.
Task requestToken(HttpClient &httpClient, const FormFields &fields,
                  std::function<void(const TokenResult &)> done);

/// What an answer to `fields` means. Its error texts hold none of the secrets that were sent or
/// received.
TokenResult tokenResult(const HttpResult &answer, const FormFields &fields);

/// The "email" in the payload of an ID token, whose signature is not looked at: it came from the
/// server itself.
std::optional<QString> emailOfIDToken(const QString &token);

} // namespace quillmere
