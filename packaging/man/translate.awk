# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Puts the translations of a .po file into a man page. Translated are headings and paragraphs of plain text; what the
# file does not have stays English. With -v list=1 the texts of a page are listed in place of that, one a line.
#
#   awk -f translate.awk <language>.po <page>

function unquoted(text) {
    sub(/^[^"]*"/, "", text)
    sub(/"[^"]*$/, "", text)
    gsub(/\\"/, "\"", text)
    return text
}

# A page writes the hyphens of names, and a line must not begin like a request.
function escaped(text) {
    gsub(/\\-/, "-", text)
    gsub(/-/, "\\-", text)
    return text ~ /^[.']/ ? "\\\\&" text : text
}

function plain(text) {
    gsub(/\\-/, "-", text)
    return text
}

function end_paragraph() {
    if (paragraph == "") {
        return
    }
    key = plain(paragraph)
    if (list) {
        print key
    } else {
        printf "%s", translations[key] == "" ? lines : escaped(translations[key]) "\n"
    }
    paragraph = lines = ""
}

function heading(line) {
    name = substr(line, 5)
    if (list) {
        print name
    } else {
        print ".SH " (translations[name] == "" ? name : "\"" translations[name] "\"")
    }
}

BEGIN { paragraph = lines = ""; verbatim = 0 }

# Where words are not set apart by blanks a line breaks elsewhere.
FNR == 1 && FILENAME ~ /(ja|zh[^\/]*)\.po$/ { breaking = FILENAME ~ /ja\.po$/ ? "ja.tmac" : "zh.tmac" }

FILENAME ~ /\.po$/ {
    if (/^msgid /) { id = unquoted($0) }
    else if (/^msgstr / && id != "") { translations[id] = unquoted($0) }
    next
}

/^\.TH / && breaking != "" && !list { print ".mso " breaking "\n" $0 "\n.ad l"; next }

/^\.SH / && !verbatim { end_paragraph(); heading($0); next }

/^[.']/ || verbatim {
    end_paragraph()
    if (/^\.(nf|TS)/) { verbatim = 1 }
    if (/^\.(fi|TE)/) { verbatim = 0 }
    if (!list) { print }
    next
}

{
    paragraph = paragraph == "" ? $0 : paragraph " " $0
    lines = lines $0 "\n"
}

END { end_paragraph() }
