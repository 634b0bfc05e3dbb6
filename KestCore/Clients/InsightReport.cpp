// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/InsightReport.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"

#include <fmt/format.h>

template Base::Result<KestCore::InsightReport> Base::json::decode(const PaddedText &);
template Base::Result<std::string> Base::json::encode(const KestCore::InsightReport &);

namespace KestCore
{

std::string messageOf(const InsightError &error)
{
    switch (error.kind) {
    case InsightError::Kind::configuration:
    case InsightError::Kind::permission:
        break;
    case InsightError::Kind::response:
        return "The provider returned an unexpected report. No totals were saved.";
    case InsightError::Kind::limit:
        return "This period contains more than 10,000 balance entries. Choose a shorter "
               "period; partial totals are not shown.";
    case InsightError::Kind::rateLimited:
        return "The provider is limiting requests. Wait a moment, then refresh.";
    case InsightError::Kind::service:
        return "The provider is temporarily unavailable. Try again shortly.";
    case InsightError::Kind::offline:
        return fmt::format("{} did not answer. Check the connection, then refresh.",
                           error.unanswered ? nameOf(*error.unanswered) : "The provider");
    case InsightError::Kind::cancelled:
        return "The report was cancelled.";
    }
    return error.message;
}

Availability availabilityOf(InsightError::Kind kind)
{
    switch (kind) {
    case InsightError::Kind::configuration:
        return Availability::unconfigured;
    case InsightError::Kind::permission:
        return Availability::permissionDenied;
    case InsightError::Kind::rateLimited:
        return Availability::rateLimited;
    case InsightError::Kind::service:
    case InsightError::Kind::offline:
        return Availability::offline;
    case InsightError::Kind::response:
    case InsightError::Kind::limit:
    case InsightError::Kind::cancelled:
        break;
    }
    return Availability::error;
}

} // namespace KestCore
