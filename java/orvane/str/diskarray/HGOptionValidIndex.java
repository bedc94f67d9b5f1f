package orvane.str.diskarray;

public class HGOptionValidIndex {
    public int option_valid_index;
    public int[] option2_valid_index = new int[2];
    public int option3_valid_index;
}
