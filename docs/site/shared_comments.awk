# In our headers a comment goes for all members below it down to the next blank line: for
# a getter with its setter, for both overloads. Doxygen wants one for each, and gets it
# here.
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
