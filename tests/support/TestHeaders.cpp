// What is compiled here is the precompiled header alone.
