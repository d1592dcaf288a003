// A library has to have a file; this one is there for its precompiled headers.
