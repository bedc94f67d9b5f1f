package orvane.str.diskarray;

public class MappingGuardList {
    public byte[] lumap_guard = new byte[4096];
}
