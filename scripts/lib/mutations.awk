# Lists the small changes that scripts/mutate can make to the C++ sources given, one a line:
#
#   FILE <tab> FIRST <tab> LAST <tab> KIND <tab> NEW TEXT of these lines, with \001 between lines
#
# It knows the layout that .clang-format gives: binary operators have blanks around them, a statement
# begins its line. Left alone are comments, preprocessor lines, message maps, declarations, and
# statements that only check or trace in a debug build.

function trim(text) {
    sub(/^[ \t]+/, "", text)
    sub(/[ \t]+$/, "", text)
    return text
}

function indent_of(text) {
    match(text, /^ */)
    return substr(text, 1, RLENGTH)
}

function offer(first, last, kind, text) {
    print file "\t" first "\t" last "\t" kind "\t" text
}

# The lines from first to last as they are.
function text_of(first, last,    l, text) {
    text = raw[first]
    for (l = first + 1; l <= last; l++)
        text = text "\001" raw[l]
    return text
}

# Their code alone, in one line.
function code_of(first, last,    l, text) {
    text = trim(code[first])
    for (l = first + 1; l <= last; l++)
        text = text " " trim(code[l])
    return text
}

# Sets code[l] to the line without its comments and without what stands in quotes, each replaced by
# as many other characters.
function mask(l,    text, length_, i, c, two, out, quote) {
    text = raw[l]
    length_ = length(text)
    out = ""
    quote = ""
    for (i = 1; i <= length_; i++) {
        c = substr(text, i, 1)
        two = substr(text, i, 2)
        if (in_comment) {
            out = out " "
            if (two == "*/") {
                out = out " "
                i++
                in_comment = 0
            }
        } else if (quote != "") {
            if (c == "\\") {
                out = out "_"
                i++
            } else if (c == quote) {
                quote = ""
            }
            out = out (quote == "" ? c : "_")
        } else if (two == "//") {
            break
        } else if (two == "/*") {
            in_comment = 1
            out = out "  "
            i++
        } else {
            # Not that which groups digits.
            if (c == "\"" || c == "'" && substr(text, i - 1, 1) !~ /[0-9A-Fa-f]/)
                quote = c
            out = out c
        }
    }
    code[l] = out
}

# Follows the braces of a line: how many that hold code are open, and what the function returns.
function follow_braces(l,    text, length_, i, c) {
    text = code[l]
    length_ = length(text)
    code_depth[l] = depth_of_code
    returns_nothing[l] = is_void
    for (i = 1; i <= length_; i++) {
        c = substr(text, i, 1)
        if (c == "{") {
            head = trim(head)
            depth++
            holds_code[depth] = depth_of_code > 0 || head ~ /\(/ && head !~ /=$/
            if (head ~ /^(inline )?(class|struct|union|enum|namespace|extern)( |$)/)
                holds_code[depth] = 0
            if (holds_code[depth]) {
                if (depth_of_code == 0)
                    is_void = head ~ /(^| )void [A-Za-z_:~]+\(/ ||
                        head ~ /^(explicit |constexpr |virtual |inline )*[A-Za-z_:~]+\(/
                depth_of_code++
            }
            head = ""
        } else if (c == "}") {
            if (holds_code[depth])
                depth_of_code--
            depth--
            head = ""
        } else if (c == ";") {
            head = ""
        } else {
            head = head c
            if (head ~ /^ *(public|protected|private):$/)
                head = ""
        }
    }
    head = head " "
}

# Marks the lines where nothing is changed.
function mark_skipped(    l, inside, text) {
    for (l = 1; l <= lines; l++) {
        text = trim(code[l])
        skipped[l] = text == "" || inside == "map"
        if (text ~ /^#/ || inside == "directive") {
            skipped[l] = 1
            inside = text ~ /\\$/ ? "directive" : ""
        } else if (text ~ /^BEGIN_(TEMPLATE_)?MESSAGE_MAP/) {
            skipped[l] = 1
            inside = "map"
        } else if (text ~ /^END_MESSAGE_MAP/) {
            inside = ""
        } else if (inside == "" && text ~ /^(TRACE|Trace|ASSERT|static_assert|DECLARE_|IMPLEMENT_)/) {
            skipped[l] = 1
            inside = text ~ /;$/ ? "" : "check"
        } else if (inside == "check") {
            skipped[l] = 1
            inside = text ~ /;$/ ? "" : "check"
        } else if (text ~ /^(using|namespace|template|class|struct|enum|union|friend|typedef|extern) ?/ &&
                   text ~ /^[a-z]+( |$)/) {
            skipped[l] = 1
        } else if (text ~ /operator/) {
            skipped[l] = 1
        }
    }
}

function replace_at(l, column, length_, new, kind) {
    offer(l, l, kind, substr(raw[l], 1, column - 1) new substr(raw[l], column + length_))
}

# Operators, numbers, TRUE and FALSE of one line.
function list_tokens(l,    text, i, token, before, after, count, w, words, kind) {
    text = code[l] " "
    kind = text ~ /(^| )return / ? "return" : "constant"
    for (i = 1; i <= length(code[l]); i++) {
        before = i == 1 ? " " : substr(text, i - 1, 1)
        if (before == " " && match(substr(text, i), /^(==|!=|<=|>=|<|>|\+=|-=|&=|\|=|\+|-|&&|\|\||&|\|) /)) {
            token = substr(text, i, RLENGTH - 1)
            count = split(replacements[token], words, " ")
            for (w = 1; w <= count; w++)
                replace_at(l, i, length(token), words[w], "operator")
            i += length(token) - 1
        } else if (substr(text, i, 1) == "!" && substr(text, i + 1, 1) != "=") {
            replace_at(l, i, 1, "", "operator")
        } else if (before !~ /[A-Za-z0-9_.]/ && match(substr(text, i), /^[A-Za-z0-9_][A-Za-z0-9_.]*/)) {
            token = substr(text, i, RLENGTH)
            after = substr(text, i + RLENGTH, 1)
            if (token ~ /^[0-9]/) {
                replace_at(l, i, RLENGTH, "(" token " + 1)", "constant")
                if (token !~ /^(0x)?0+[uUlL]*$/)
                    replace_at(l, i, RLENGTH, "0", "constant")
            } else if (token in opposite) {
                replace_at(l, i, length(token), opposite[token], kind)
            }
            i += length(token) - 1
        }
    }
}

# Finds where each statement begins and ends: end_of[l], or 0. Only those that are a call, an
# assignment or a return; is_body[l] when it hangs on an if or a loop without braces.
function find_statements(    l, previous, last, text, plain, balance) {
    previous = ""
    for (l = 1; l <= lines; l++) {
        end_of[l] = 0
        text = trim(code[l])
        if (text == "")
            continue
        if (!skipped[l] && code_depth[l] > 0 && text !~ /^[{}]/ &&
            previous ~ /([;{}:)]|^else|} else)$/) {
            last = l
            balance = 0
            plain = ""
            for (;;) {
                plain = plain " " trim(code[last])
                if (plain ~ /;$/ || last - l > 5 || last == lines)
                    break
                last++
            }
            plain = trim(plain)
            if (count_of(plain, "(") == count_of(plain, ")") &&
                count_of(plain, "{") == count_of(plain, "}") && count_of(plain, ";") == 1) {
                is_body[l] = previous ~ /(\)|else)$/
                while (gsub(/\[[^\[\]]*\]/, "", plain) > 0)
                    ;
                if (plain ~ /^return[ ;]/) {
                    end_of[l] = last
                    sort_of[l] = "return"
                } else if (plain ~ /^[*(]?[A-Za-z_:][A-Za-z0-9_:.>()-]* (=|[-+|&^*\/]=|<<=|>>=) /) {
                    end_of[l] = last
                    sort_of[l] = "assignment"
                } else if (plain ~ /^(::)?[A-Za-z_][A-Za-z0-9_:.>-]*(<[A-Za-z0-9_:]*>)?\(.*\);$/ ||
                           plain ~ /^(\+\+|--)/ || plain ~ /^[A-Za-z_][A-Za-z0-9_]*(\+\+|--);$/ ||
                           plain ~ /^delete /) {
                    end_of[l] = last
                    sort_of[l] = "call"
                }
            }
        }
        previous = text
    }
}

function count_of(text, character,    i, count) {
    count = 0
    for (i = 1; i <= length(text); i++)
        count += substr(text, i, 1) == character
    return count
}

# Whether two assignments do not see each other, so that their order is nothing.
function independent(first, second,    a, b, target_a, target_b) {
    if (sort_of[first] != "assignment" || sort_of[second] != "assignment")
        return 0
    a = code_of(first, end_of[first])
    b = code_of(second, end_of[second])
    if (a ~ /\(/ || b ~ /\(/)
        return 0
    target_a = a
    sub(/ .*/, "", target_a)
    target_b = b
    sub(/ .*/, "", target_b)
    return target_a != target_b && index(b, target_a) == 0 && index(a, target_b) == 0
}

function list_statements(    l, next_, leave, value) {
    for (l = 1; l <= lines; l++) {
        if (!end_of[l])
            continue
        if (sort_of[l] == "return") {
            value = code_of(l, end_of[l])
            sub(/^return */, "", value)
            sub(/;$/, "", value)
            if (is_body[l])
                offer(l, end_of[l], "return", indent_of(raw[l]) "{}")
            if (value !~ /^(|0|FALSE|false|TRUE|true|NULL|nullptr|\{\})$/ && !returns_nothing[l])
                offer(l, end_of[l], "return", indent_of(raw[l]) "return {};")
            continue
        }
        offer(l, end_of[l], "dropped", indent_of(raw[l]) "{}")
        if (!is_body[l] && code_depth[l] == 1) {
            leave = returns_nothing[l] ? "return;" : "return {};"
            offer(l, end_of[l], "return", indent_of(raw[l]) leave "\001" text_of(l, end_of[l]))
        }
        next_ = end_of[l] + 1
        if (!is_body[l] && next_ <= lines && end_of[next_] && sort_of[next_] != "return" &&
            indent_of(raw[l]) == indent_of(raw[next_]) && !independent(l, next_))
            offer(l, end_of[next_], "swapped",
                text_of(next_, end_of[next_]) "\001" text_of(l, end_of[l]))
    }
}

function list_all(    l, value) {
    mark_skipped()
    find_statements()
    for (l = 1; l <= lines; l++) {
        if (skipped[l])
            continue
        list_tokens(l)
        # A function in one line.
        if (match(code[l], /\{ return [^;{}]*; \}/)) {
            value = substr(code[l], RSTART + 9, RLENGTH - 12)
            if (value !~ /^(0|FALSE|false|TRUE|true|NULL|nullptr)$/)
                replace_at(l, RSTART + 9, RLENGTH - 12, "{}", "return")
        }
    }
    list_statements()
}

BEGIN {
    replacements["=="] = "!="
    replacements["!="] = "=="
    replacements["<"] = "<= >"
    replacements["<="] = "< >="
    replacements[">"] = ">= <"
    replacements[">="] = "> <="
    replacements["+"] = "-"
    replacements["-"] = "+"
    replacements["+="] = "-="
    replacements["-="] = "+="
    replacements["&&"] = "||"
    replacements["||"] = "&&"
    replacements["&"] = "|"
    replacements["|"] = "&"
    replacements["&="] = "|="
    replacements["|="] = "&="
    opposite["TRUE"] = "FALSE"
    opposite["FALSE"] = "TRUE"
    opposite["true"] = "false"
    opposite["false"] = "true"
}

FNR == 1 {
    if (file != "")
        list_all()
    file = FILENAME
    lines = in_comment = depth = depth_of_code = is_void = 0
    head = ""
}

{
    lines = FNR
    raw[FNR] = $0
    mask(FNR)
    if (trim(code[FNR]) ~ /^#/)
        code_depth[FNR] = depth_of_code
    else
        follow_braces(FNR)
}

END {
    if (file != "")
        list_all()
}
