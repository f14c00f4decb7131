# A public header as Doxygen is to read it. What Doxygen 1.9 gets wrong or does not know is written out:
#   - "/// \addtogroup NAME", and a comment on all that follows, once in a header: everything after it belongs to that
#     topic, in whatever namespace. Topics.dox defines the topics. A header that says nothing is in that of its room.
#   - The map of additions that each header in src/ext/ begins with, as text of the topic of that section.
#   - "///@{", a comment, several declarations, "///@}": the comment of each of them that has none of its own.
BEGIN {
    while ((getline line < "docs/reference/Topics.dox") > 0) {
        if (split(line, words, " ") > 1 && words[1] == "\\defgroup") is_topic[words[2]] = 1
    }
    count = split("Analysis checks Configuration settings EdaLink links Forms widgets Hotkeys keys Layers layers " \
                  "Messages messages Values values Version messages Views views", pairs, " ")
    for (i = 1; i < count; i += 2) topic_of[pairs[i]] = pairs[i + 1]
    count = split("analysis checks config settings embedded engine hotkey keys layers layers links links " \
                  "support messages testengine testing uiapi views units values widgets widgets", pairs, " ")
    for (i = 1; i < count; i += 2) topic_of_room[pairs[i]] = pairs[i + 1]
    count = split(ARGV[1], path, "/")
    section = path[count]
    sub(/\.h$/, "", section)
    for (i = 1; i < count; ++i) if (path[i] in topic_of_room) topic = topic_of_room[path[i]]
    if (path[count - 1] == "ext") {
        is_lost = !(section in topic_of)
        map_topic = topic = is_lost ? "none" : topic_of[section]
    }
}
function enter() { print "/// \\addtogroup " topic "\n///@{\n" }
function leave() { print "\n///@}" }
{
    code = $0
    sub(/\/\/.*/, "", code)
    gsub(/"[^"]*"/, "", code)
    sub(/[ \t]+$/, "", code)
    is_comment = /^[ \t]*\/\/\//
}

# The map of additions: "//   function()   what it does", and paragraphs.
map_topic && /^\/\/( |$)/ {
    if (!in_map) print "namespace KVCAM::UIAPI {\n/// \\addtogroup " map_topic "\n/// \\details\n/// \\par Additions"
    in_map = 1
    if (/^\/\/   [^ ]/) {
        name = ($2 ~ /^(KV|UIAPI)/ ? "" : "Ext::") $2
        sub(/^\/\/ +[^ ]+ +/, "")
        print "/// - " name ": " $0
    } else print "/" $0
    next
}
in_map { print "\n}"; in_map = map_topic = "" }

# The topic.
/^\/\/\/ \\addtogroup / {
    if (in_topic) leave()
    in_topic = 0
    topic = $3
    is_topic_comment = 1
}
is_topic_comment && !is_comment { is_topic_comment = 0; print ""; enter(); in_topic = 1 }
/^namespace .*\{$|^(class|struct|enum) .*[^;]$/ { declares = 1 }
{
    before = braces
    braces += gsub(/\{/, "&", code) - gsub(/\}/, "&", code)
    is_border = 0
    if (/^(inline )?namespace .*\{$/) { is_border = 1; spaces[++space] = before }
    else if (/^\}/ && space && braces == spaces[space]) { is_border = 1; --space }
}
is_border && !is_topic_comment && topic { if (in_topic) leave(); print; enter(); in_topic = 1; next }

# Shared comments. The first declaration is preceded by the comment already.
/^[ \t]*\/\/\/@\{/ { shared = has_comment = is_first = 1; lines = depth = within = 0; print ""; next }
/^[ \t]*\/\/\/@\}/ { shared = 0; print ""; next }
is_comment { has_comment = 1; if (shared && is_first) comment[++lines] = $0 }
shared && code != "" {
    if (!within && !has_comment) for (i = 1; i <= lines; ++i) print comment[i]
    has_comment = is_first = 0
    depth += gsub(/[({]/, "&", code) - gsub(/[)}]/, "&", code)
    within = !(depth == 0 && code ~ /[;},]$/)
}
{ print }

END {
    if (in_topic) leave()
    if (is_lost || (declares && !(topic in is_topic))) { # Doxygen reports it as an error
        name = FILENAME
        sub(/.*\//, "", name)
        gsub(/[^A-Za-z0-9]/, "_", name)
        print "\n/// \\addtogroup views\n/// \\ref " name "_has_no_topic_of_Topics_dox\n"
    }
}
