package orvane.str.diskarray;

/** Cannot be loaded: its initialiser fails. */
public class PoolDetailInfo {
    static final int BROKEN = Integer.parseInt("not a number");
}
