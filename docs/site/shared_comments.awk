# In our headers a comment applies to all members below it up to the next blank line: to a
# getter and its setter, to both overloads. Doxygen wants one each, so repeat it.
/^    \/\/\// {
    if (!in_comment) comment = ""
    in_comment = 1
    comment = comment $0 "\n"
    print
    next
}
/^$/ { comment = "" }
/^    [A-Za-z~]/ && !in_comment && $0 !~ /\/\/\/</ { printf "%s", comment }
{ in_comment = 0; print }
