// The chat window's words in both languages: captions, the notices of a refused message, and
// the lines it writes into the conversation.
#pragma once

#include <string_view>

#include "engine/host.h"

namespace vorlexa::chat {

// Captions are display text and stay UTF-8.
namespace caption {
inline constexpr std::string_view kToArmenian = "Change to Armenian";  // Label1 in English mode
inline constexpr std::string_view kToEnglish = "Փոխել անգլերենի";      // Label1 in Armenian mode
inline constexpr std::string_view kTitleEnglish = "Bilingual Chat";
inline constexpr std::string_view kTitleArmenian = "Երկլեզվյա զրուցարան";
inline constexpr std::string_view kWithEnglish = "With Translation";
inline constexpr std::string_view kWithoutEnglish = "Without Translation";
inline constexpr std::string_view kWithArmenian = "Թարգմանությամբ";
inline constexpr std::string_view kWithoutArmenian = "Առանց թարգմանելու";
inline constexpr std::string_view kSendEnglish = "Send";
inline constexpr std::string_view kSendArmenian = "Ուղարկել";
inline constexpr std::string_view kStatusLight = " IP -";
inline constexpr std::string_view kStatusToolTip = "Click to add all Lockal IP-s to the list";
}  // namespace caption

// The heading DetLocIP puts above the own addresses, by Label1's caption.
Wording ownAddressesHeading();

// The refusals of SendingMessage.
Notice noMessageNotice();
Notice tooLongNotice();

// What follows the time in the conversation.
Wording youSaid();
Wording respondentSaid();

// The window's own lines about the network, which the design doesn't have: a port taken by
// another program, and a machine without a local address to announce.
Wording portInUseLine(int port);
Wording noAddressLine();

}  // namespace vorlexa::chat
