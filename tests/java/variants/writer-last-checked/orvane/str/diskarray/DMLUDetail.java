package orvane.str.diskarray;

/** Lacks dmlu_lu, the last field whose failure drops the object. */
public class DMLUDetail {
    public int dmlu_valid;
    public int set_valid;
    public int dmlu_lu_absent;
}
