package simtest;

/**
 * Marks the tests that also run in the 32-bit JVM against the shipped library
 * (interpreted under emulation there: a session, one round trip per family,
 * persistence).
 */
public interface Smoke {}
