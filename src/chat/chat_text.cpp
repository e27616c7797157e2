#include "chat/chat_text.h"

#include <string>

#include "text/font_text.h"

namespace vorlexa::chat {

using namespace vorlexa::literals;

namespace {

Wording wording(std::string_view english, std::string_view armenian) {
    return Wording{FontText(english), FontText(armenian)};
}

Wording attention() {
    return wording("Attention", "Ուշադրություն"_ft);
}

}  // namespace

Wording ownAddressesHeading() {
    return wording("All Local IPs-Below:", "Տեղական IP-ներ."_ft);
}

Notice noMessageNotice() {
    return Notice{wording("No message to send!!!", "Հաղորդագրություն չկա:"_ft), attention()};
}

Notice tooLongNotice() {
    return Notice{
        wording("Sorry, your text exceeds permitted volum!!!",
                "Ներողություն, ձեր տեքստը գերազանցում է զրուցարանում թույլատրելի ծավալը:"_ft),
        attention()};
}

Wording youSaid() {
    return wording(" - YOU SAID:", " - ԴՈՒՔ ԱՍԱՑԻՔ."_ft);
}

Wording respondentSaid() {
    return wording(" - RESPONDENT SAID:", " - ՄՅՈՒՍ ԿՈՂՄՆ ԱՍԱՑ."_ft);
}

Wording portInUseLine(int port) {
    const std::string number = std::to_string(port);
    return Wording{
        "Port " + number +
            " is in use by another program, so this chat cannot use it. Close that program and "
            "open the chat again.",
        number + FontText(" պորտը զբաղեցված է այլ ծրագրով, և զրուցարանը չի կարող օգտագործել այն: "
                          "Փակեք այդ ծրագիրը և նորից բացեք զրուցարանը:"_ft)};
}

Wording noAddressLine() {
    return wording(
        "No address of this machine on a local network was found, so the chat announces nothing. "
        "Start the program with --chat-address ADDRESS to give one.",
        "Այս համակարգչի տեղական ցանցի հասցեն չգտնվեց, ուստի զրուցարանը ոչինչ չի հայտարարում: "
        "Հասցեն տվեք ծրագրի --chat-address ADDRESS ընտրանքով:"_ft);
}

}  // namespace vorlexa::chat
