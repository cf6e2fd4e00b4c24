// Character classes. Contract: quill_char.h; definitions: quill_char.hpp.

#include <quill/quill_char.hpp>

bool quill___CharIsAlpha(coChar ch) { return quill::isAlpha(ch); }
bool quill___CharIsDigit(coChar ch) { return quill::isDigit(ch); }
bool quill___CharIsAlphanum(coChar ch) { return quill::isAlphanum(ch); }
bool quill___CharIsAtom(coChar ch) { return quill::isAtom(ch); }
bool quill___CharIsTokenNodot(coChar ch) { return quill::isTokenNodot(ch); }
bool quill___CharIsToken(coChar ch) { return quill::isToken(ch); }
bool quill___CharIsHnvUnreserved(coChar ch) { return quill::isHnvUnreserved(ch); }
bool quill___CharIsLws(coChar ch) { return quill::isLws(ch); }
bool quill___CharIsMark(coChar ch) { return quill::isMark(ch); }
bool quill___CharIsReserved(coChar ch) { return quill::isReserved(ch); }
bool quill___CharIsSeparator(coChar ch) { return quill::isSeparator(ch); }
bool quill___CharIsUnreserved(coChar ch) { return quill::isUnreserved(ch); }
bool quill___CharIsParamChar(coChar ch) { return quill::isParamChar(ch); }
bool quill___CharIsUserUnreserved(coChar ch) { return quill::isUserUnreserved(ch); }
bool quill___CharIsWord(coChar ch) { return quill::isWord(ch); }

bool quill___CharIsHexdig(coChar ch, int64_t *value) {
    if (value) *value = co::hexValue(ch);
    return quill::isHexdig(ch);
}
