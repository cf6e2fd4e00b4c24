// Names of hosts. Contract: nx_dns.h.

#define CO_UNIT "source/nx/nx_dns"

#include <co/co_assert.hpp>
#include <co/co_ip.hpp>
#include <co/co_unicode.hpp>
#include <nx/nx_dns.h>
#include <nx/nx_dns.hpp>
#include <nx/nx_idna.hpp>
#include <nx/nx_punycode.hpp>

namespace {

constexpr size_t longestLabel = 63; // RFC 1035, 2.3.4
constexpr size_t longestName = 253; // 255 octets with their lengths, the root's included

// A code point of a name's normal form comes from four of its text at most: it decomposes into no more, and the
// mapping leaves nothing out. A longer text is no name, and nothing else needs to be known of it.
constexpr size_t longestText = 4 * longestName + 1;

bool isLetterDigit(coChar ch) {
    return (ch >= U'a' && ch <= U'z') || (ch >= U'A' && ch <= U'Z') || (ch >= U'0' && ch <= U'9');
}

// RFC 5890, 2.3.1.
bool isLdhLabel(co::Chars label) {
    if (label.empty() || label.size() > longestLabel || label.front() == U'-' || label.back() == U'-') return false;
    return std::all_of(label.begin(), label.end(), [](coChar ch) { return isLetterDigit(ch) || ch == U'-'; });
}

bool hasAcePrefix(co::Chars label) {
    return label.size() >= 4 && co::asciiLower(label[0]) == U'x' && co::asciiLower(label[1]) == U'n' &&
           label[2] == U'-' && label[3] == U'-';
}

bool isAscii(co::Chars text) {
    return std::all_of(text.begin(), text.end(), [](coChar ch) { return ch < 0x80; });
}

bool isAddress(co::Chars text) {
    if (!text.empty() && co::ipv4Length(text) == co::length(text)) return true;
    if (!text.starts_with(U'[') || !text.ends_with(U']') || text.size() < 2) return false;
    co::Chars const inner = text.substr(1, text.size() - 2);
    return !inner.empty() && co::ipv6Length(inner) == co::length(inner);
}

// A label in both forms; they are the same where it is neither an A-label nor a U-label.
struct Forms {
    nx::Label ascii;
    nx::Label unicode;
};

bool readALabel(co::Chars label, Forms &forms) {
    nx::Label lower;
    for (coChar ch : label) {
        if (!lower.append(co::asciiLower(ch))) return false;
    }
    co::Chars const encoded = lower.view().substr(4);
    nx::Label again;
    return forms.ascii.append(label) && nx::decodePunycode(encoded, forms.unicode) &&
           nx::isULabel(forms.unicode.view()) && nx::encodePunycode(forms.unicode.view(), again) &&
           again.view() == encoded;
}

bool readAsciiLabel(co::Chars label, Forms &forms) {
    if (!isLdhLabel(label)) return false;
    if (hasAcePrefix(label)) return readALabel(label, forms);
    return forms.ascii.append(label) && forms.unicode.append(label);
}

bool readLabel(co::Chars text, Forms &forms) {
    if (isAscii(text)) return readAsciiLabel(text, forms);
    nx::Label mapped;
    if (!nx::mapLabel(text, mapped)) return false;
    if (isAscii(mapped.view())) return readAsciiLabel(mapped.view(), forms);
    return nx::isULabel(mapped.view()) && forms.unicode.append(mapped.view()) && forms.ascii.append(U"xn--") &&
           nx::encodePunycode(mapped.view(), forms.ascii);
}

// A full stop, and what RFC 5895, 2, steps 2 and 4 make one.
bool isDot(coChar ch) { return ch == U'.' || ch == 0x3002 || ch == 0xFF0E || ch == 0xFF61; }

// Takes a label, and the dot behind it, from the beginning of the text.
struct Piece {
    co::Chars label;
    bool hasDot;
};

Piece takePiece(co::Chars &text) {
    auto const *end = std::find_if(text.begin(), text.end(), isDot);
    Piece const piece{{text.begin(), static_cast<size_t>(end - text.begin())}, end != text.end()};
    text.remove_prefix(piece.label.size() + piece.hasDot);
    return piece;
}

// A domain name in both forms.
class Name {
public:
    bool read(co::Chars text) {
        if (text.empty() || text.size() > longestText) return false;
        bool hasRightToLeft = false;
        bool allSatisfyBidi = true;
        while (!text.empty()) {
            Piece const piece = takePiece(text);
            Forms forms;
            if (!readLabel(piece.label, forms) || !append(forms, piece.hasDot)) return false;
            hasRightToLeft = hasRightToLeft || nx::isRightToLeftLabel(forms.unicode.view());
            allSatisfyBidi = allSatisfyBidi && nx::satisfiesBidiRule(forms.unicode.view());
        }
        return (!hasRightToLeft || allSatisfyBidi) && (ascii.size() <= longestName || ascii.view().back() == U'.');
    }

    nx::Bounded<longestName + 1> ascii;
    nx::Bounded<longestName + 1> unicode;

private:
    bool append(Forms const &forms, bool hasDot) {
        return ascii.append(forms.ascii.view()) && unicode.append(forms.unicode.view()) &&
               (!hasDot || (ascii.append(U'.') && unicode.append(U'.')));
    }
};

} // namespace

// Whether both forms of the text are the text itself: an address, or a name without A-labels, U-labels and mappings.
// So are most names, and these need no more than a look.
bool nx::isPlain(co::Chars text) {
    if (isAddress(text)) return true;
    if (text.empty() || text.size() > longestName + text.ends_with(U'.')) return false;
    while (!text.empty()) {
        co::Chars const label = text.substr(0, text.find(U'.'));
        if (!isLdhLabel(label) || hasAcePrefix(label)) return false;
        text.remove_prefix(std::min(text.size(), label.size() + 1));
    }
    return true;
}

coString *nx::tryToUnicode(co::Chars name) {
    if (isPlain(name)) return co::makeString(name);
    Name forms;
    return forms.read(name) ? co::makeString(forms.unicode.view()) : nullptr;
}

bool nxDnsIdnaDomainNameOk(struct coString const *name) {
    CO_ASSERT_GIVEN(name);
    return nx::isPlain(name->view()) || Name().read(name->view());
}

struct coString *nxDnsIdnaDomainNameToAscii(struct coString *name) {
    CO_ASSERT_GIVEN(name);
    if (nx::isPlain(name->view())) return co::retained(name);
    Name forms;
    CO_ASSERT(forms.read(name->view()), "nxDnsIdnaDomainNameOk( name )");
    return co::makeString(forms.ascii.view());
}

struct coString *nxDnsIdnaDomainNameToUnicode(struct coString *name) {
    CO_ASSERT_GIVEN(name);
    if (nx::isPlain(name->view())) return co::retained(name);
    Name forms;
    CO_ASSERT(forms.read(name->view()), "nxDnsIdnaDomainNameOk( name )");
    return co::makeString(forms.unicode.view());
}
