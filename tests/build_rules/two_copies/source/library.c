int library_entry(void) { return 0; }
