# A public header as Doxygen is to read it. What Doxygen 1.9 gets wrong or does not know is written out:
#   - "/// \addtogroup NAME", and a comment on all that follows, once in a header: everything after it belongs to that
#     topic, in whatever namespace. Topics.dox defines the topics.
#   - The map of additions that each header in src/ext/ begins with, as text of the topic of that section.
#   - "///@{", a comment, several declarations, "///@}": the comment of each of them that has none of its own.
BEGIN {
    while ((getline line < "docs/reference/Topics.dox") > 0) {
        if (split(line, words, " ") > 1 && words[1] == "\\defgroup") is_topic[words[2]] = 1
    }
    count = split("Analysis checks Configuration settings EdaLink links Forms widgets Hotkeys keys Layers layers " \
                  "Messages messages Values values Version messages Views views", pairs, " ")
    for (i = 1; i < count; i += 2) topic_of[pairs[i]] = pairs[i + 1]
    path = ARGV[1]
    if (path ~ /src\/ext\/[A-Za-z]+\.h$/) {
        gsub(/.*\/|\.h$/, "", path)
        map_topic = path in topic_of ? topic_of[path] : "none"
        is_lost = map_topic == "none"
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
/^\/\/\/ \\addtogroup / { topic = $3; is_topic_comment = 1 }
is_topic_comment && !is_comment { is_topic_comment = 0; print ""; enter(); in_topic = 1 }
/^namespace .*\{$|^(class|struct|enum) .*[^;]$/ { declares = 1 }
{
    before = braces
    braces += gsub(/\{/, "&", code) - gsub(/\}/, "&", code)
    is_border = 0
    if (/^(inline )?namespace .*\{$/) { is_border = 1; spaces[++space] = before }
    else if (/^\}/ && space && braces == spaces[space]) { is_border = 1; --space }
}
in_topic && is_border { leave(); print; enter(); next }

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
        print "/// \\file\n/// \\ref " name "_has_no_topic_of_Topics_dox"
    }
}
