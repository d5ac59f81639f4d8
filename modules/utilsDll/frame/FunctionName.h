// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace ZYX_zglv6 {

/*!
    Reads a compiler's spelling of a function from left to right and keeps what log lines show:
    "Namespace::Class::function", without return type, parameters and template arguments. The unnamed namespace reads
    "`anonymous-namespace'", a lambda "Namespace::function::<lambda>". Works at compile time.
*/
class FunctionNameCutter
{
public:
    constexpr explicit FunctionNameCutter(std::string_view signature)
        : m_rest(signature)
    {
        while (!m_rest.empty()) {
            cutNext();
        }
    }

    /*! The plain name; names beyond the capacity lose their end. */
    [[nodiscard]] constexpr std::string_view name() const
    {
        return {m_name.data(), m_size};
    }

private:
    static constexpr std::size_t capacity = 512;

    /*! Handles what stands at the front. The end of the name empties the rest. */
    constexpr void cutNext()
    {
        if (cutUnnamedNamespace() || cutLambda() || cutUnnamedType() || cutDecltype() || cutOperator()) {
            return;
        }
        switch (m_rest.front()) {
        case ' ':
            cutBlank();
            return;
        case '(':
            cutParenthesis();
            return;
        case '<':
            skipGroup();
            return;
        case '*':
        case '&':
            cutBlank(); // as behind a blank: what stood before was the return type
            return;
        case ')':
            m_rest.remove_prefix(1); // of the parentheses that a return type puts around the name
            return;
        default:
            put(m_rest.substr(0, 1));
            m_rest.remove_prefix(1);
        }
    }

    constexpr bool cutUnnamedNamespace()
    {
        for (const std::string_view spelling :
             {"{anonymous}", "(anonymous namespace)", "`anonymous-namespace'", "`anonymous namespace'"}) {
            if (take(spelling)) {
                put("`anonymous-namespace'");
                return true;
            }
        }
        return false;
    }

    constexpr bool cutLambda()
    {
        if (m_rest.starts_with("<lambda") || m_rest.starts_with("(lambda at ")) {
            skipGroup();
        } else if (!take("(anonymous class)")) {
            return false;
        }
        put("<lambda>");
        if (take("::operator ()") || take("::operator()")) {
            skipParameters();
        } else {
            skipQualifiers();
        }
        return true;
    }

    constexpr bool cutUnnamedType()
    {
        if (!m_rest.starts_with("<unnamed") && !m_rest.starts_with("(anonymous ")) {
            return false;
        }
        skipGroup();
        put("<unnamed>");
        return true;
    }

    constexpr bool cutDecltype()
    {
        if (!startsWithWord("decltype")) {
            return false;
        }
        take("decltype");
        take(" ");
        if (m_rest.starts_with('(')) {
            skipGroup();
        }
        return true;
    }

    constexpr bool cutOperator()
    {
        if (!startsWithWord("operator")) {
            return false;
        }
        take("operator");
        put("operator");
        if (take("()") || take(" ()")) {
            put("()");
            return true;
        }
        if (m_rest.starts_with(' ')) {
            cutOperatorWords();
            return true;
        }
        const std::string_view symbol = m_rest.substr(0, m_rest.find_first_not_of("<>=!+-*/%^&|~,[]"));
        put(symbol);
        m_rest.remove_prefix(symbol.size());
        return true;
    }

    /*! A conversion's type, new or delete: all up to the parameters, which a conversion has none of. */
    constexpr void cutOperatorWords()
    {
        for (int depth = 0; !m_rest.empty() && (depth > 0 || !m_rest.starts_with("()"));) {
            if (cutUnnamedNamespace()) {
                continue;
            }
            if (depth == 0 && m_rest.starts_with('(')) {
                return;
            }
            depth += m_rest.starts_with('<') ? 1 : 0;
            depth -= m_rest.starts_with('>') ? 1 : 0;
            put(m_rest.substr(0, 1));
            m_rest.remove_prefix(1);
        }
    }

    /*! All before a blank was a specifier or the return type. */
    constexpr void cutBlank()
    {
        m_rest.remove_prefix(1);
        m_size = 0;
    }

    constexpr void cutParenthesis()
    {
        if (m_size == 0) {
            m_rest.remove_prefix(1); // a function that returns a function pointer has its name inside
            return;
        }
        skipParameters();
    }

    constexpr void skipParameters()
    {
        if (m_rest.starts_with('(')) {
            skipGroup();
        }
        skipQualifiers();
    }

    /*! The name goes on behind parameters and their qualifiers only if a local class or a lambda follows. */
    constexpr void skipQualifiers()
    {
        while (take(" ") || take("const") || take("volatile") || take("mutable") || take("noexcept") || take("&")) { }
        if (!m_rest.starts_with("::")) {
            m_rest = {};
        }
    }

    constexpr void skipGroup()
    {
        int depth = 0;
        do {
            if (take("->") || takeCharacterLiteral()) {
                continue;
            }
            depth += std::string_view("(<[{").find(m_rest.front()) != std::string_view::npos ? 1 : 0;
            depth -= std::string_view(")>]}").find(m_rest.front()) != std::string_view::npos ? 1 : 0;
            m_rest.remove_prefix(1);
        } while (depth > 0 && !m_rest.empty());
    }

    [[nodiscard]] constexpr bool startsWithWord(std::string_view word) const
    {
        const bool isBegun = m_size > 0 && isWordCharacter(m_name[m_size - 1]);
        const bool isLonger = m_rest.size() > word.size() && isWordCharacter(m_rest[word.size()]);
        return m_rest.starts_with(word) && !isBegun && !isLonger;
    }

    static constexpr bool isWordCharacter(char character)
    {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z')
            || (character >= '0' && character <= '9') || character == '_';
    }

    /*! A template argument such as '>'. */
    constexpr bool takeCharacterLiteral()
    {
        if (m_rest.size() < 3 || m_rest[0] != '\'' || m_rest[2] != '\'') {
            return false;
        }
        m_rest.remove_prefix(3);
        return true;
    }

    constexpr bool take(std::string_view text)
    {
        if (!m_rest.starts_with(text)) {
            return false;
        }
        m_rest.remove_prefix(text.size());
        return true;
    }

    constexpr void put(std::string_view text)
    {
        for (const char character : text.substr(0, capacity - m_size)) {
            m_name[m_size++] = character;
        }
    }

    std::string_view m_rest;
    std::array<char, capacity> m_name{};
    std::size_t m_size = 0;
};

/*! The plain name of \a signature in an array of its own size, zero-terminated. */
template <std::size_t Size>
constexpr std::array<char, Size + 1> cutFunctionName(std::string_view signature)
{
    const FunctionNameCutter cutter(signature);
    std::array<char, Size + 1> name{};
    std::copy(cutter.name().begin(), cutter.name().end(), name.begin());
    return name;
}

} // namespace ZYX_zglv6

#if defined(_MSC_VER) && !defined(__clang__)
#define ZYX_COMPILERS_FUNCTION_NAME __FUNCTION__
#else
#define ZYX_COMPILERS_FUNCTION_NAME __PRETTY_FUNCTION__
#endif

/*!
    Declares \a variable, a zero-terminated std::array<char> that lives forever and holds the enclosing function's name.
*/
#define ZYX_DECLARE_FUNCTION_NAME(variable)                                                                            \
    static constexpr auto variable                                                                                     \
        = ::ZYX_zglv6::cutFunctionName<::ZYX_zglv6::FunctionNameCutter(ZYX_COMPILERS_FUNCTION_NAME).name().size()>(    \
            ZYX_COMPILERS_FUNCTION_NAME)
