package orvane.str.diskarray;

/** Lacks booting_wait, the last field whose failure drops the object. */
public class MicroFileInformation {
    public String micro;
    public int valid;
    public int booting_wait_absent;
}
