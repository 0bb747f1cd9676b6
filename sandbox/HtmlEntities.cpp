#include "sandbox/HtmlEntities.h"

#include "sandbox/Text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

namespace quillon::sandbox {

namespace {

// The entity of "span" depends on its class and that of "a" on its address; here they are only
// known tags.
const std::map<std::string, std::string, std::less<>> entityOfTag{
    {"a", "text_link"},       {"b", "bold"},          {"strong", "bold"},
    {"i", "italic"},          {"em", "italic"},       {"u", "underline"},
    {"ins", "underline"},     {"s", "strikethrough"}, {"strike", "strikethrough"},
    {"del", "strikethrough"}, {"span", "spoiler"},    {"tg-spoiler", "spoiler"},
    {"code", "code"},         {"pre", "pre"},         {"blockquote", "blockquote"},
};

bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

struct OpenTag {
    std::string name;
    std::size_t textBegin = 0;
    std::string argument;
    bool expandable = false;
};

class HtmlReader {
public:
    explicit HtmlReader(std::string_view html) : html_{html} {}

    FormattedText read() {
        while (position_ < html_.size()) {
            if (html_[position_] != '<') {
                text_ += readCharacter();
            } else if (at(position_ + 1) == '/') {
                readEndTag();
            } else {
                readStartTag();
            }
        }
        if (!open_.empty()) {
            throw EntityError{"Can't find end tag corresponding to start tag \"" +
                              open_.back().name + '"'};
        }
        return {std::move(text_), inOrder()};
    }

private:
    // Returns NUL at the end; a NUL in the text ends it as well.
    char at(std::size_t position) const { return position < html_.size() ? html_[position] : '\0'; }

    void skipSpace() {
        while (isSpace(at(position_)))
            ++position_;
    }

    // Reads up to white space or one of `ends`.
    std::string_view readWord(std::string_view ends) {
        const std::size_t begin = position_;
        while (position_ < html_.size() && !isSpace(html_[position_]) &&
               ends.find(html_[position_]) == std::string_view::npos)
            ++position_;
        return html_.substr(begin, position_ - begin);
    }

    [[noreturn]] static void fail(const std::string& what, std::size_t offset) {
        throw EntityError{what + " at byte offset " + std::to_string(offset)};
    }

    // Reads one byte of text or a reference.
    std::string readCharacter() {
        if (html_[position_] == '&') return characterReference();
        return {html_[position_++]};
    }

    // Reads one of the four named references or a numeric one; the semicolon may be missing. An
    // ampersand that begins none of them stands for itself.
    std::string characterReference() {
        static const std::map<std::string_view, char> named{
            {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}};
        std::size_t end = position_ + 1;
        std::optional<char32_t> codePoint;
        if (at(end) == '#') {
            codePoint = numericReference(++end);
        } else {
            while (isLetter(at(end)))
                ++end;
            const auto found = named.find(html_.substr(position_ + 1, end - position_ - 1));
            if (found != named.end()) codePoint = static_cast<char32_t>(found->second);
        }
        if (!codePoint) {
            ++position_;
            return "&";
        }
        position_ = at(end) == ';' ? end + 1 : end;
        return encoded(*codePoint);
    }

    std::optional<char32_t> numericReference(std::size_t& end) const {
        constexpr std::size_t longest = 8;
        const int base = at(end) == 'x' ? 16 : 10;
        if (base == 16) ++end;
        const char* const first = html_.data() + end;
        std::uint32_t value = 0;
        const auto [last, error] = std::from_chars(first, html_.data() + html_.size(), value, base);
        const auto digits = static_cast<std::size_t>(last - first);
        const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
        if (error != std::errc{} || digits > longest || value == 0 || value > 0x10FFFF || surrogate)
            return std::nullopt;
        end += digits;
        return value;
    }

    void readStartTag() {
        const std::size_t begin = position_++;
        OpenTag tag{lowered(readWord(">")), text_.size(), {}, false};
        if (position_ >= html_.size()) fail("Unclosed start tag", begin);
        if (!entityOfTag.contains(tag.name))
            fail("Unsupported start tag \"" + tag.name + '"', begin);
        readAttributes(tag, begin);
        ++position_;
        open_.push_back(std::move(tag));
    }

    // Reads the tag's attributes and stops at its closing bracket.
    void readAttributes(OpenTag& tag, std::size_t begin) {
        bool spoiler = false;
        for (skipSpace(); at(position_) != '>'; skipSpace()) {
            if (position_ >= html_.size()) fail("Unclosed start tag", begin);
            const auto [name, value] = readAttribute(tag, begin);
            if (tag.name == "a" && name == "href") tag.argument = value;
            if (tag.name == "code" && name == "class" && value.starts_with("language-"))
                tag.argument = value.substr(std::string_view{"language-"}.size());
            if (tag.name == "blockquote" && name == "expandable") tag.expandable = true;
            if (name == "class" && value == "tg-spoiler") spoiler = true;
        }
        if (tag.name == "span" && !spoiler)
            fail(R"(Tag "span" must have class "tg-spoiler")", begin);
    }

    std::pair<std::string, std::string> readAttribute(const OpenTag& tag, std::size_t begin) {
        std::string name{readWord("=>")};
        if (name.empty()) fail("Empty attribute name in the tag \"" + tag.name + '"', begin);
        skipSpace();
        if (at(position_) != '=') {
            if (tag.name == "blockquote" && name == "expandable") return {name, {}};
            fail("Expected equal sign in declaration of an attribute of the tag \"" + tag.name +
                     '"',
                 begin);
        }
        ++position_;
        skipSpace();
        if (position_ >= html_.size()) fail("Unclosed start tag", begin);
        return {lowered(name), readAttributeValue()};
    }

    std::string readAttributeValue() {
        std::string value;
        const char quote = html_[position_];
        if (quote != '\'' && quote != '"') {
            const std::size_t begin = position_;
            while (isLetter(at(position_)) || isDigit(at(position_)) || at(position_) == '.' ||
                   at(position_) == '-')
                value += html_[position_++];
            if (!isSpace(at(position_)) && at(position_) != '>')
                fail("Unexpected end of name token", begin);
            return lowered(value);
        }
        ++position_;
        while (position_ < html_.size() && html_[position_] != quote)
            value += readCharacter();
        if (position_ < html_.size()) ++position_;
        return value;
    }

    void readEndTag() {
        const std::size_t begin = position_;
        if (open_.empty()) fail("Unexpected end tag", begin);
        position_ += 2;
        const std::string name = lowered(readWord(">"));
        skipSpace();
        if (at(position_) != '>') fail("Unclosed end tag", begin);
        ++position_;
        const OpenTag tag = std::move(open_.back());
        open_.pop_back();
        if (!name.empty() && name != tag.name) {
            throw EntityError{"Unmatched end tag at byte offset " + std::to_string(begin) +
                              ", expected \"</" + tag.name + ">\", found \"</" + name + ">\""};
        }
        close(tag);
    }

    void close(const OpenTag& tag) {
        if (tag.textBegin == text_.size()) return;
        Entity entity{entityOfTag.at(tag.name), tag.textBegin, text_.size(), tag.argument};
        if (tag.name == "a" && entity.argument.empty()) {
            entity.argument = text_.substr(entity.begin);
            if (entity.argument.find("://") == std::string::npos) return;
        }
        if (tag.name == "blockquote" && tag.expandable) entity.type = "expandable_blockquote";
        if (tag.name == "pre") absorbInner(entity);
        if (tag.name == "code") {
            // Only a pre block has a language, so it is kept until the block around it closes.
            language_ = std::exchange(entity.argument, {});
            eraseWithin(entity);
        }
        entities_.push_back(std::move(entity));
    }

    // Nothing may be nested in a pre block, but a code tag that fills it sets its language.
    void absorbInner(Entity& pre) {
        const bool filled = std::ranges::any_of(entities_, [&](const Entity& e) {
            return e.type == "code" && e.begin == pre.begin && e.end == pre.end;
        });
        if (filled) pre.argument = std::exchange(language_, {});
        eraseWithin(pre);
    }

    void eraseWithin(const Entity& outer) {
        std::erase_if(entities_, [&](const Entity& e) { return e.begin >= outer.begin; });
    }

    std::vector<Entity> inOrder() {
        std::ranges::reverse(entities_);
        std::ranges::stable_sort(entities_, [](const Entity& a, const Entity& b) {
            return a.begin != b.begin ? a.begin < b.begin : a.end > b.end;
        });
        return std::move(entities_);
    }

    std::string_view html_;
    std::size_t position_ = 0;
    std::string text_;
    std::vector<OpenTag> open_;
    std::vector<Entity> entities_;
    std::string language_;
};

} // namespace

FormattedText parseHtml(std::string_view html) {
    return HtmlReader{html}.read();
}

FormattedText trimmed(FormattedText formatted) {
    std::string& text = formatted.text;
    const auto last = text.find_last_not_of(" \n");
    text.resize(last == std::string::npos ? 0 : last + 1);
    std::erase_if(formatted.entities, [&](const Entity& e) { return e.begin >= text.size(); });
    std::size_t cut = std::min(text.find_first_not_of(" \n"), text.size());
    for (const Entity& entity : formatted.entities)
        cut = std::min(cut, entity.begin);
    for (Entity& entity : formatted.entities) {
        entity.end = std::min(entity.end, text.size()) - cut;
        entity.begin -= cut;
    }
    text.erase(0, cut);
    return formatted;
}

} // namespace quillon::sandbox
