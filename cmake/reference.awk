# What doxygen reads of a public header.
# Message handlers and the state of classes are not for hosts. An override or a copy by default without a comment does
# what is said elsewhere. An overload without a comment has that of the one above it.
function name_of(line) {
    return match(line, /[A-Za-z_~][A-Za-z_0-9]*\(/) ? substr(line, RSTART, RLENGTH - 1) : ""
}
/^#pragma once/ { print "/** @file */"; next }
dropping { dropping = !/;/; print ""; next }
/^ *\/\/\// { comment = comment substr($0, index($0, "///") + 3); fresh = 1; print; next }
/^ *afx_msg / { dropping = !/;/; fresh = 0; comment = ""; print ""; next }
!fresh && (/ override;$/ || / = default;$/) { print ""; next }
/^ +[^()]*[ *&]m_[A-Za-z0-9]+(\[[^]]*\])?( = [^;]*| *\{.*\})?;/ { fresh = 0; comment = ""; print ""; next }
{
    name = name_of($0)
    if (fresh) {
        documented = name
        text = comment
    } else if (name != "" && name == documented) {
        sub(/^ */, "&/** " text " */ ")
    } else if (name != "" && /^    [^ ]/) {
        documented = ""
    }
    fresh = 0
    comment = ""
    print
}
