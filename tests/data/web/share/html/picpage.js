// picpage
