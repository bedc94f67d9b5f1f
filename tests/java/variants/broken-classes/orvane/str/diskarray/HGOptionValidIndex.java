package orvane.str.diskarray;

/** Has no constructor without arguments. */
public class HGOptionValidIndex {
    public int option_valid_index;
    public int[] option2_valid_index = new int[2];
    public int option3_valid_index;

    public HGOptionValidIndex(int valid) {
        option_valid_index = valid;
    }
}
