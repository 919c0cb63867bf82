// Nothing: the library whose precompiled headers all folders share needs a source.
