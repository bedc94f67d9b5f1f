package orvane.str.diskarray;

public class PINInformation {
    public int unite_option;
    public int[] single_lu;
    public int[] unite_lu;
}
