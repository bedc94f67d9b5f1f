package orvane.str.diskarray;

/** Lacks dmlu, the last field whose failure drops the object. */
public class DMLUInformation {
    public int mode;
    public int dmlu_count;
    public DMLUDetail[] dmlu_absent;
}
