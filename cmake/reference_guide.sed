# The guide for doxygen, which knows headings by other names than the web does: references to them become plain text.
s/\[\([^]]*\)](#[^)]*)/\1/g
