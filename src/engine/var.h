// Var: an engine member that the rules treat loosely. A flag holds empty or 1, and the rules
// tell empty from 0; a few members hold a number first and text later (PersonCode becomes the
// person ending itself, QuoteCount becomes "ե"). So the value is kept as text: a number is its
// decimal digits, empty is empty, and a comparison with a number compares those digits.
#pragma once

#include <charconv>
#include <string>
#include <string_view>

#include "text/font_text.h"

namespace vorlexa {

class Var {
public:
    Var() = default;
    Var(int n) { assignNumber(n); }
    Var(std::string_view s) : text_(s) {}
    Var(const char* s) : text_(s) {}
    Var(const std::string& s) : text_(s) {}

    bool empty() const { return text_.empty(); }
    void clear() { text_.clear(); }
    const FontText& text() const { return text_; }

    // True when the value is the number n: "1" for 1, never for empty or other text.
    bool is(int n) const {
        constexpr int kOneDigit = 10;  // the flags' 0 and 1 and the small codes, told without a conversion
        if (n >= 0 && n < kOneDigit) return text_.size() == 1 && text_[0] == static_cast<char>('0' + n);
        char buf[16];
        const auto r = std::to_chars(buf, buf + sizeof buf, n);
        return std::string_view(buf, static_cast<std::size_t>(r.ptr - buf)) == text_;
    }
    bool isSet() const { return is(1); }

    // The leading whole number of the value, 0 when there is none (so empty reads 0).
    int number() const {
        int n = 0;
        std::from_chars(text_.data(), text_.data() + text_.size(), n);
        return n;
    }
    bool isNumber() const {
        int n = 0;
        const auto r = std::from_chars(text_.data(), text_.data() + text_.size(), n);
        return !text_.empty() && r.ec == std::errc() && r.ptr == text_.data() + text_.size();
    }

    friend bool operator==(const Var& v, int n) { return v.is(n); }
    friend bool operator==(const Var& v, std::string_view s) { return v.text_ == s; }
    friend bool operator==(const Var& v, const char* s) { return v.text_ == s; }
    friend bool operator==(const Var& v, const std::string& s) { return v.text_ == s; }
    friend bool operator==(const Var& a, const Var& b) { return a.text_ == b.text_; }

private:
    void assignNumber(int n) {
        char buf[16];
        const auto r = std::to_chars(buf, buf + sizeof buf, n);
        text_.assign(buf, r.ptr);
    }

    FontText text_;
};

// A member that holds empty or 1.
using Flag = Var;

}  // namespace vorlexa
