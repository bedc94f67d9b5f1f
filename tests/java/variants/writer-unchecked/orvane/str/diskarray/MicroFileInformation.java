package orvane.str.diskarray;

/** Lacks micro, its last unchecked field. */
public class MicroFileInformation {
    public String micro_absent;
    public int valid;
    public int booting_wait;
}
