package orvane.str.diskarray;

/** Lacks lumap_guard, the last field whose failure drops the object. */
public class MappingGuardList {
    public byte[] lumap_guard_absent = new byte[4096];
}
