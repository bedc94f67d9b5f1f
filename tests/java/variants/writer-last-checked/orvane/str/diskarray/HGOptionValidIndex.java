package orvane.str.diskarray;

/** Lacks option3_valid_index, the last field whose failure drops the object. */
public class HGOptionValidIndex {
    public int option_valid_index;
    public int[] option2_valid_index = new int[2];
    public int option3_valid_index_absent;
}
